// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/stylesheet.h"

#include "platform/linux/panelcolors/colortext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// Bytes, and the depth of imports. More is no panel's style sheet.
constexpr qint64 largestFile = 1 << 18;
constexpr int deepest = 8;

const QRegularExpression &comments()
{
    static const QRegularExpression pattern(uR"(/\*.*?\*/)"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    return pattern;
}

/// What a sheet imports, by a path or a "file:" URL.
QString importedFile(const QString &sheet, const QString &name)
{
    const QUrl url(name);
    const QString path = url.isLocalFile() ? url.toLocalFile() : name;
    return QDir::cleanPath(QFileInfo(sheet).dir().absoluteFilePath(path));
}

} // namespace

StyleSheet StyleSheet::read(const QString &file)
{
    StyleSheet sheet;
    sheet.add(file, 0);
    return sheet;
}

void StyleSheet::add(const QString &file, int depth)
{
    QFile source(file);
    if (depth > deepest || m_files.contains(file) || !QFileInfo(file).isFile()
        || !source.open(QIODevice::ReadOnly))
        return;
    m_files.append(file);
    const QString text = QString::fromUtf8(source.read(largestFile)).remove(comments());
    static const QRegularExpression imports(
        uR"(@import\s+(?:url\(\s*)?["']?([^"')\s;]+)["']?\s*\)?\s*;)"_s);
    for (auto each = imports.globalMatch(text); each.hasNext();)
        add(importedFile(file, each.next().captured(1)), depth + 1);
    static const QRegularExpression definitions(uR"(@define-color\s+([\w-]+)\s+([^;]+);)"_s);
    for (auto each = definitions.globalMatch(text); each.hasNext();) {
        const auto found = each.next();
        m_definitions.insert(found.captured(1), found.captured(2).trimmed());
    }
    addRules(QString(text).remove(imports).remove(definitions));
}

void StyleSheet::addRules(const QString &text)
{
    static const QRegularExpression rules(uR"(([^{};]+)\{([^{}]*)\})"_s);
    for (auto each = rules.globalMatch(text); each.hasNext();) {
        const auto rule = each.next();
        for (const QString &selector : rule.captured(1).split(u',')) {
            auto &properties = m_rules[selector.simplified()];
            for (const QString &declaration : rule.captured(2).split(u';')) {
                const qsizetype colon = declaration.indexOf(u':');
                if (colon > 0)
                    properties.insert(declaration.left(colon).trimmed(),
                                      declaration.mid(colon + 1).trimmed());
            }
        }
    }
}

std::optional<QColor> StyleSheet::color(const QString &selector, const QString &property) const
{
    return colorIn(m_rules.value(selector).value(property));
}

std::optional<QColor> StyleSheet::firstColor(const QStringList &selectors) const
{
    for (const QString &selector : selectors) {
        if (const auto found = color(selector, u"color"_s))
            return found;
    }
    return {};
}

std::optional<QColor> StyleSheet::ground(const QString &selector) const
{
    const auto exact = color(selector, u"background-color"_s);
    return exact ? exact : color(selector, u"background"_s);
}

std::optional<QColor> StyleSheet::colorOf(const QString &word, int depth) const
{
    if (word.startsWith(u'@'))
        return colorIn(m_definitions.value(word.sliced(1)), depth + 1);
    return ferrin::colorIn(word);
}

std::optional<QColor> StyleSheet::colorIn(const QString &value, int depth) const
{
    if (depth > deepest || value.contains("url("_L1) || value.contains("palette("_L1))
        return {};
    static const QRegularExpression words(uR"(@[\w-]+|#[0-9a-fA-F]+|rgba?\([^)]*\)|[a-zA-Z]+)"_s);
    float red = 0, green = 0, blue = 0, alpha = 0;
    int count = 0;
    for (auto each = words.globalMatch(value); each.hasNext();) {
        const auto found = colorOf(each.next().captured(), depth);
        if (!found)
            continue;
        ++count;
        red += found->redF();
        green += found->greenF();
        blue += found->blueF();
        alpha += found->alphaF();
    }
    if (count == 0)
        return {};
    const auto share = float(count);
    static const QRegularExpression dimmed(uR"(^alpha\(.*,\s*([\d.]+%?)\s*\)$)"_s);
    if (const auto found = dimmed.match(value); found.hasMatch())
        alpha *= opacityIn(found.captured(1));
    return QColor::fromRgbF(red / share, green / share, blue / share, alpha / share);
}

} // namespace ferrin
