// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/waybarcolors.h"

#include "menubar/contrast.h"
#include "platform/linux/panelcolors/stylesheet.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

QString configFile(const QString &name)
{
    return QStandardPaths::locate(QStandardPaths::GenericConfigLocation, u"waybar/"_s + name);
}

/// The style sheet among a bar's arguments; empty for none.
QString sheetAmong(const QStringList &arguments)
{
    const QString assigned = u"--style="_s;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i].startsWith(assigned))
            return arguments[i].sliced(assigned.size());
        if (arguments[i] == u"-s" || arguments[i] == u"--style")
            return arguments.value(i + 1);
    }
    return {};
}

const QString anyBar = u"window#waybar"_s;

/// The text of a bar, given its own selector: of any, or of one that the sheet singles out.
std::optional<QColor> textOf(const QString &bar, const StyleSheet &sheet)
{
    const QStringList bars { bar, anyBar, u"#waybar"_s, u"*"_s };
    const QStringList trays { bar + u" #tray"_s, u"#tray"_s };
    const QStringList boxes { u".modules-right"_s, bar + u" > box"_s, u"window#waybar > box"_s };
    std::optional<QColor> ground;
    for (const QString &selector : trays + boxes + bars) {
        ground = sheet.ground(selector);
        if (ground && ground->alpha() > 0)
            break;
    }
    return readableText(sheet.firstColor(trays + bars), ground);
}

/// Absent too where bars of one process have names, or states, under which it is not the same: the
/// item has one picture for all of them.
std::optional<QColor> textIn(const StyleSheet &sheet)
{
    const std::optional<QColor> text = textOf(anyBar, sheet);
    const QStringList classes = sheet.classesOf(anyBar);
    const bool isSame = std::ranges::all_of(
        classes, [&](const QString &name) { return textOf(anyBar + u'.' + name, sheet) == text; });
    return isSame ? text : std::nullopt;
}

} // namespace

void WaybarColors::addBar(uint processId, const QStringList &arguments)
{
    m_given.removeIf([](const std::pair<const uint &, QString &> &bar) {
        return !QFileInfo::exists(u"/proc/%1"_s.arg(bar.first));
    });
    m_given.insert(processId, sheetAmong(arguments));
}

void WaybarColors::setDesktopDark(const std::optional<bool> &isDark)
{
    if (std::exchange(m_isDesktopDark, isDark) != isDark)
        refresh();
}

QString WaybarColors::usualSheet() const
{
    if (m_isDesktopDark) {
        QString ofScheme
            = configFile(*m_isDesktopDark ? u"style-dark.css"_s : u"style-light.css"_s);
        if (!ofScheme.isEmpty())
            return ofScheme;
    }
    return configFile(u"style.css"_s);
}

QStringList WaybarColors::sheets() const
{
    QStringList result;
    for (const QString &given : m_given)
        result.append(QDir::isAbsolutePath(given) ? given : usualSheet());
    result.removeDuplicates();
    return result.isEmpty() ? QStringList { usualSheet() } : result;
}

QStringList WaybarColors::files() const
{
    QStringList result;
    for (const QString &sheet : sheets())
        result += StyleSheet::read(sheet).files();
    return result;
}

std::optional<QColor> WaybarColors::readText() const
{
    std::optional<QColor> text;
    for (const QString &file : sheets()) {
        const std::optional<QColor> own = textIn(StyleSheet::read(file));
        if (!own || (text && *own != *text))
            return {};
        text = own;
    }
    return text;
}

} // namespace ferrin
