// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktoppackageinstaller.h"

#include <QList>

#include <algorithm>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

/// In the order in which they are tried. What opens packages by default may well be an archive
/// manager, so it comes last.
QList<CommandLine> installersOf(const QString &path, bool isKde)
{
    const CommandLine gnome { u"gnome-software"_s, { u"--local-filename=%1"_s.arg(path) } };
    const CommandLine kde { u"plasma-discover"_s, { u"--local-filename"_s, path } };
    return { { u"gdebi-gtk"_s, { path } },
             { u"qapt-deb-installer"_s, { path } },
             { u"deepin-deb-installer"_s, { path } },
             isKde ? kde : gnome,
             isKde ? gnome : kde,
             { u"xdg-open"_s, { path } } };
}

} // namespace

DesktopPackageInstaller::DesktopPackageInstaller(ProgramStarter &starter, QStringList desktops)
    : m_starter(starter)
    , m_desktops(std::move(desktops))
{
}

bool DesktopPackageInstaller::install(const QString &path)
{
    const QList<CommandLine> installers = installersOf(path, m_desktops.contains(u"KDE"_s));
    return std::ranges::any_of(installers, [this](const CommandLine &installer) {
        return m_starter.isInstalled(installer.program) && m_starter.start(installer);
    });
}

} // namespace ferrin
