// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/lxqtcolors.h"

#include "menubar/contrast.h"
#include "platform/linux/panelcolors/stylesheet.h"

#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

QString configFile(const QString &name)
{
    return QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name);
}

QString lxqtSheetFile()
{
    // A user's file need not say everything that the system's does.
    const QStringList files
        = QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, u"lxqt/lxqt.conf"_s);
    for (const QString &file : files) {
        const QString theme = QSettings(file, QSettings::IniFormat).value(u"theme"_s).toString();
        if (!theme.isEmpty())
            return QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                          u"lxqt/themes/%1/lxqt-panel.qss"_s.arg(theme));
    }
    return {};
}

/// What the user gave the panel with the status area: a colour in the given entry.
std::optional<QColor> ofLxqtPanel(const QSettings &settings, const QString &entry)
{
    for (const QString &panel : settings.value(u"panels"_s).toStringList()) {
        const QStringList plugins = settings.value(panel + u"/plugins"_s).toStringList();
        if (!plugins.contains(u"statusnotifier"_s))
            continue;
        const auto color = settings.value(panel + u'/' + entry).value<QColor>();
        return color.isValid() ? std::optional(color) : std::nullopt;
    }
    return {};
}

} // namespace

QStringList LxqtColors::files() const
{
    return { configFile(u"lxqt/panel.conf"_s), configFile(u"lxqt/lxqt.conf"_s), lxqtSheetFile() };
}

std::optional<QColor> LxqtColors::readText() const
{
    const QSettings panel(configFile(u"lxqt/panel.conf"_s), QSettings::IniFormat);
    const StyleSheet sheet = StyleSheet::read(lxqtSheetFile());
    auto ground = ofLxqtPanel(panel, u"background-color"_s);
    if (!ground)
        ground = sheet.ground(u"LXQtPanel #BackgroundWidget"_s);
    auto text = ofLxqtPanel(panel, u"font-color"_s);
    if (!text)
        text = sheet.firstColor(
            { u"Plugin > QToolButton"_s, u"Plugin > QWidget"_s, u"LXQtPanel"_s });
    return readableText(text, ground);
}

} // namespace ferrin
