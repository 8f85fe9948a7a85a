// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostprocess.h"

#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

constexpr qint64 longestFile = 4096;
constexpr qsizetype longestName = 15;

struct UsualHost
{
    QLatin1StringView desktop;
    QLatin1StringView process;
};

// Not those of compositors, whose users choose a bar.
constexpr std::array usualHosts {
    UsualHost { "GNOME"_L1, "gnome-shell"_L1 },
    UsualHost { "KDE"_L1, "plasmashell"_L1 },
    UsualHost { "XFCE"_L1, "xfce4-panel"_L1 },
    UsualHost { "LXQt"_L1, "lxqt-panel"_L1 },
    UsualHost { "MATE"_L1, "notification-area-applet"_L1 },
    UsualHost { "X-Cinnamon"_L1, "xapp-sn-watcher"_L1 },
    UsualHost { "Budgie"_L1, "budgie-panel"_L1 },
    UsualHost { "Enlightenment"_L1, "enlightenment"_L1 },
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestFile) : QByteArray();
}

} // namespace

HostProcess hostProcessFromKernel(uint processId)
{
    const QString folder = u"/proc/%1/"_s.arg(processId);
    return { .id = processId,
             .name = QString::fromUtf8(contentOf(folder + u"comm"_s)).trimmed(),
             .arguments = QString::fromLocal8Bit(contentOf(folder + u"cmdline"_s))
                              .split(QChar::Null, Qt::SkipEmptyParts) };
}

HostProcess usualHostOf(const QStringList &desktops)
{
    for (const QString &desktop : desktops) {
        const auto *const row = std::ranges::find(usualHosts, desktop, &UsualHost::desktop);
        if (row != usualHosts.end())
            return { .name = row->process.left(longestName) };
    }
    return {};
}

} // namespace ferrin
