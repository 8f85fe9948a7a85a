// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/panelsheets.h"

#include "menubar/contrast.h"
#include "platform/linux/panelcolors/stylesheet.h"

#include <QDir>
#include <QFile>
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

std::optional<QColor> firstOf(const StyleSheet &sheet, const QStringList &selectors)
{
    for (const QString &selector : selectors) {
        if (const auto color = sheet.color(selector, u"color"_s))
            return color;
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
        text = firstOf(sheet, { u"Plugin > QToolButton"_s, u"Plugin > QWidget"_s, u"LXQtPanel"_s });
    return readableText(text, ground);
}

void WaybarColors::setArguments(const QStringList &arguments)
{
    m_given.clear();
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments[i] == u"-s" || arguments[i] == u"--style")
            m_given = arguments[i + 1];
    }
}

QString WaybarColors::file() const
{
    return QDir::isAbsolutePath(m_given) ? m_given : configFile(u"waybar/style.css"_s);
}

QStringList WaybarColors::files() const
{
    return StyleSheet::read(file()).files();
}

std::optional<QColor> WaybarColors::readText() const
{
    const StyleSheet sheet = StyleSheet::read(file());
    std::optional<QColor> ground;
    for (const QString &selector : { u"#tray"_s, u".modules-right"_s, u"window#waybar > box"_s,
                                     u"window#waybar"_s, u"#waybar"_s, u"*"_s }) {
        ground = sheet.ground(selector);
        if (ground && ground->alpha() > 0)
            break;
    }
    return readableText(firstOf(sheet, { u"#tray"_s, u"window#waybar"_s, u"#waybar"_s, u"*"_s }),
                        ground);
}

QStringList argumentsFromKernel(uint processId)
{
    QFile words(u"/proc/%1/cmdline"_s.arg(processId));
    if (!words.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLocal8Bit(words.read(4096)).split(QChar::Null, Qt::SkipEmptyParts);
}

} // namespace ferrin
