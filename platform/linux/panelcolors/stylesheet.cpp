// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/stylesheet.h"

#include "platform/linux/panelcolors/colortext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

// Bytes, and the depth of imports. More is no panel's style sheet.
constexpr qint64 largestFile = 1 << 18;
constexpr int deepest = 8;
// Characters, and the words that one colour is made of, those of its definitions among them.
constexpr qsizetype longestValue = 1024;
constexpr int mostWords = 256;
// More than anybody has bars and states of them.
constexpr qsizetype mostClasses = 16;

/// Without comments, with single spaces, and with nothing after the last rule or statement: the
/// patterns below would search such a rest again from each of its characters.
QString readable(const QString &text)
{
    QString kept;
    qsizetype end = 0;
    while (end >= 0) {
        const qsizetype begin = text.indexOf("/*"_L1, end);
        kept += QStringView(text).mid(end, begin < 0 ? -1 : begin - end);
        end = begin < 0 ? -1 : text.indexOf("*/"_L1, begin + 2);
        end = end < 0 ? -1 : end + 2;
    }
    kept = kept.simplified();
    return kept.left(std::max(kept.lastIndexOf(u';'), kept.lastIndexOf(u'}')) + 1);
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
    const QString text = readable(QString::fromUtf8(source.read(largestFile)));
    static const QRegularExpression imports(
        uR"(@import\s+(?:url\(\s*)?["']?([^"')\s;\x00]+)["']?\s*\)?\s*;)"_s);
    for (auto each = imports.globalMatch(text); each.hasNext();)
        add(importedFile(file, each.next().captured(1)), depth + 1);
    static const QRegularExpression definitions(uR"(@define-color\s+([\w-]+)\s+([^;]+);)"_s);
    for (auto each = definitions.globalMatch(text); each.hasNext();) {
        const auto found = each.next();
        m_definitions.insert(found.captured(1), found.captured(2).trimmed());
    }
    const QString rules = QString(text).remove(imports).remove(definitions);
    addRules(rules);
}

void StyleSheet::addRules(QStringView text)
{
    qsizetype begin = 0;
    qsizetype brace = -1;
    qsizetype declaration = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'{') {
            // Within braces: a rule within a condition.
            begin = brace < 0 ? begin : declaration;
            brace = at;
            declaration = at + 1;
        } else if (text[at] == u'}') {
            if (brace >= 0)
                addRule(text.sliced(begin, brace - begin), text.sliced(brace + 1, at - brace - 1));
            brace = -1;
            begin = at + 1;
        } else if (text[at] == u';') {
            (brace < 0 ? begin : declaration) = at + 1;
        }
    }
}

void StyleSheet::addRule(QStringView selectors, QStringView declarations)
{
    Rule rule { {}, declarations.toString() };
    for (const QStringView selector : selectors.split(u','))
        rule.selectors.append(selector.toString().simplified());
    m_rules.append(rule);
}

QString StyleSheet::valueOf(const QString &selector, const QString &property) const
{
    for (auto rule = m_rules.crbegin(); rule != m_rules.crend(); ++rule) {
        if (!rule->selectors.contains(selector))
            continue;
        const QList<QStringView> declarations = QStringView(rule->declarations).split(u';');
        for (auto each = declarations.crbegin(); each != declarations.crend(); ++each) {
            const qsizetype colon = each->indexOf(u':');
            if (colon > 0 && each->first(colon).trimmed() == property)
                return each->sliced(colon + 1).trimmed().toString();
        }
    }
    return {};
}

std::optional<QColor> StyleSheet::color(const QString &selector, const QString &property) const
{
    int wordsLeft = mostWords;
    return colorIn(valueOf(selector, property), wordsLeft);
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

QStringList StyleSheet::classesOf(const QString &selector) const
{
    const QString prefix = selector + u'.';
    QStringList classes;
    for (const Rule &rule : m_rules) {
        for (const QString &each : rule.selectors) {
            if (!each.startsWith(prefix) || classes.size() >= mostClasses)
                continue;
            const auto *begin = each.cbegin() + prefix.size();
            const auto *end = std::find_if_not(begin, each.cend(), [](QChar c) {
                return c.isLetterOrNumber() || c == u'-' || c == u'_';
            });
            const QString name(begin, end - begin);
            if (!classes.contains(name))
                classes.append(name);
        }
    }
    return classes;
}

std::optional<QColor> StyleSheet::colorOf(const QString &word, int &wordsLeft) const
{
    if (word.startsWith(u'@'))
        return colorIn(m_definitions.value(word.sliced(1)), wordsLeft);
    return ferrin::colorIn(word);
}

std::optional<QColor> StyleSheet::colorIn(const QString &value, int &wordsLeft) const
{
    if (value.size() > longestValue || value.contains("url("_L1) || value.contains("palette("_L1))
        return {};
    static const QRegularExpression words(uR"(@[\w-]+|#[0-9a-fA-F]+|rgba?\([^)]*\)|[a-zA-Z]+)"_s);
    float red = 0, green = 0, blue = 0, alpha = 0;
    int count = 0;
    for (auto each = words.globalMatch(value); each.hasNext() && wordsLeft > 0;) {
        --wordsLeft;
        const auto found = colorOf(each.next().captured(), wordsLeft);
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
