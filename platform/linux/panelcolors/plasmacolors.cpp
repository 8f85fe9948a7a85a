// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/plasmacolors.h"

#include "platform/linux/panelcolors/colortext.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// Of Breeze, Plasma's default theme.
constexpr QRgb breezeText = 0xff232629;

const QString textKey = u"Colors:Window/ForegroundNormal"_s;
// In the group "General", which is the file's own to the reader.
const QString schemeKey = u"ColorScheme"_s;

/// The files of that name, from the user's own to the system's.
QStringList configFiles(const QString &name)
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    // A global theme's choices stand between the user's and the system's.
    if (!folders.isEmpty())
        folders.insert(1, folders.constFirst() + u"/kdedefaults"_s);
    QStringList files;
    for (const QString &folder : std::as_const(folders))
        files.append(folder + u'/' + name);
    return files;
}

QVariant valueIn(const QString &file, const QString &key)
{
    return QSettings(file, QSettings::IniFormat).value(key);
}

QVariant configured(const QString &name, const QString &key)
{
    for (const QString &file : configFiles(name)) {
        const QVariant value = valueIn(file, key);
        if (value.isValid())
            return value;
    }
    return {};
}

/// "35,38,41", which QSettings takes for a list.
std::optional<QColor> colorOf(const QVariant &value)
{
    const QStringList parts = value.toStringList();
    return parts.isEmpty() ? std::nullopt : colorIn(parts.join(u','));
}

std::optional<QColor> colorInDataFile(const QString &name)
{
    const QString file = QStandardPaths::locate(QStandardPaths::GenericDataLocation, name);
    return file.isEmpty() ? std::nullopt : colorOf(valueIn(file, textKey));
}

} // namespace

QStringList PlasmaColors::files() const
{
    return configFiles(u"plasmarc"_s) + configFiles(u"kdeglobals"_s);
}

std::optional<QColor> PlasmaColors::readText() const
{
    const QString theme = configured(u"plasmarc"_s, u"Theme/name"_s).toString();
    if (const auto own = colorInDataFile(u"plasma/desktoptheme/%1/colors"_s.arg(theme)))
        return *own;
    if (const auto chosen = colorOf(configured(u"kdeglobals"_s, textKey)))
        return *chosen;
    const QString scheme = configured(u"kdeglobals"_s, schemeKey).toString();
    return colorInDataFile(u"color-schemes/%1.colors"_s.arg(scheme))
        .value_or(QColor::fromRgb(breezeText));
}

} // namespace ferrin
