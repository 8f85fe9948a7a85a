// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/iconfiles.h"

#include "base/logging.h"
#include "menubar/iconview.h"
#include "menubar/symbolicicon.h"
#include "platform/linux/sandbox/sandbox.h"

#include <QFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// Percent. A glyph's fill is no more than 18 pixels long.
constexpr int step = 5;

int levelOf(const IconElement &icon)
{
    return int(std::lround(std::clamp(icon.charge, 0.0, 100.0) / step)) * step;
}

QString nameOf(const IconElement &icon)
{
    if (icon.fault)
        return u"ferrin-fault-symbolic"_s;
    const QString name = u"ferrin-%1"_s.arg(int(icon.icon));
    if (!isGlyph(icon.icon))
        return name + u"-symbolic"_s;
    const QString low = isNearlyEmpty(icon.charge, icon.status) ? u"-low"_s : QString();
    return u"%1-%2%3-symbolic"_s.arg(name).arg(levelOf(icon)).arg(low);
}

const QString emptyName = u"ferrin-none-symbolic"_s;

/// Every icon that an item can show, one for each file.
QList<IconElement> allElements()
{
    QList<IconElement> elements { { .fault = true } };
    for (const Icon icon : allIcons()) {
        for (int charge = 0; charge <= (isGlyph(icon) ? 100 : 0); charge += step) {
            for (const auto status :
                 { BatteryChargingStatus::discharging, BatteryChargingStatus::charging })
                elements.append({ .icon = icon, .charge = double(charge), .status = status });
        }
    }
    return elements;
}

} // namespace

QString IconFiles::nameFor(const ItemContent &content)
{
    if (!m_folder)
        write();
    if (!m_folder->isValid())
        return {};
    return content.icon ? nameOf(*content.icon) : emptyName;
}

QString IconFiles::folder() const
{
    return m_folder && m_folder->isValid() ? m_folder->path() : QString();
}

void IconFiles::write()
{
    const QString runtime = sharedRuntimeFolder();
    m_folder = std::make_unique<QTemporaryDir>(runtime + u"/ferrin-icons-XXXXXX"_s);
    const auto writeFile = [this](const QString &name, const QByteArray &svg) {
        QFile file(m_folder->filePath(name + u".svg"_s));
        return file.open(QIODevice::WriteOnly) && file.write(svg) == svg.size();
    };
    bool isWritten = m_folder->isValid()
        && writeFile(emptyName,
                     "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"24\" height=\"24\"/>\n");
    for (const IconElement &icon : allElements())
        isWritten = isWritten && writeFile(nameOf(icon), symbolicIcon(icon));
    if (!isWritten)
        qCCritical(logger, "The icons for the desktop's indicators cannot be written to %s",
                   qUtf8Printable(runtime));
}

} // namespace ferrin
