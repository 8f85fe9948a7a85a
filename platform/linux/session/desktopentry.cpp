// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktopentry.h"

namespace ferrin {

using namespace Qt::StringLiterals;

// https://specifications.freedesktop.org/desktop-entry-spec/1.5/

namespace {

const QByteArray header = "[Desktop Entry]";

QByteArray keyOf(const QByteArray &line)
{
    const qsizetype equals = line.indexOf('=');
    return equals < 0 ? QByteArray() : line.first(equals).trimmed();
}

QString unescaped(const QString &value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const QChar escaped = value[++i];
        if (escaped == u's')
            text += u' ';
        else if (escaped == u'n')
            text += u'\n';
        else if (escaped == u't')
            text += u'\t';
        else if (escaped == u'r')
            text += u'\r';
        else if (escaped == u'\\')
            text += u'\\';
        else
            (text += u'\\') += escaped;
    }
    return text;
}

QString escaped(QString text)
{
    text.replace(u"\\"_s, u"\\\\"_s)
        .replace(u"\n"_s, u"\\n"_s)
        .replace(u"\t"_s, u"\\t"_s)
        .replace(u"\r"_s, u"\\r"_s);
    // A reader strips a blank at either end.
    if (text.startsWith(u' '))
        text.replace(0, 1, u"\\s"_s);
    if (text.endsWith(u' '))
        text.replace(text.size() - 1, 1, u"\\s"_s);
    return text;
}

} // namespace

DesktopEntry::DesktopEntry(const QByteArray &content)
    : m_lines(content.split('\n'))
{
    if (m_lines.last().isEmpty())
        m_lines.removeLast();
}

std::optional<DesktopEntry::Range> DesktopEntry::group() const
{
    qsizetype begin = 0;
    while (begin < m_lines.size() && m_lines[begin].trimmed() != header)
        ++begin;
    if (begin == m_lines.size())
        return std::nullopt;
    qsizetype end = ++begin;
    while (end < m_lines.size() && !m_lines[end].startsWith('['))
        ++end;
    return Range { begin, end };
}

std::optional<qsizetype> DesktopEntry::lineOf(const QString &key) const
{
    const auto lines = group();
    if (!lines)
        return std::nullopt;
    for (qsizetype i = lines->end; i-- > lines->begin;) {
        if (keyOf(m_lines[i]) == key.toUtf8())
            return i;
    }
    return std::nullopt;
}

std::optional<QString> DesktopEntry::value(const QString &key) const
{
    const auto line = lineOf(key);
    if (!line)
        return std::nullopt;
    const QByteArray &text = m_lines[*line];
    return unescaped(QString::fromUtf8(text.mid(text.indexOf('=') + 1).trimmed()));
}

std::optional<bool> DesktopEntry::flag(const QString &key) const
{
    const QString text = value(key).value_or(QString()).toLower();
    // The digits are of the first edition of the format and are still read.
    if (text == u"true"_s || text == u"1"_s)
        return true;
    return text == u"false"_s || text == u"0"_s ? std::optional(false) : std::nullopt;
}

QStringList DesktopEntry::list(const QString &key) const
{
    return value(key).value_or(QString()).split(u';', Qt::SkipEmptyParts);
}

void DesktopEntry::setValue(const QString &key, const QString &value)
{
    const QByteArray text = (key + u'=' + escaped(value)).toUtf8();
    if (const auto line = lineOf(key)) {
        m_lines[*line] = text;
        return;
    }
    if (!group())
        m_lines.append(header);
    const Range lines = *group();
    qsizetype end = lines.end;
    while (end > lines.begin && m_lines[end - 1].trimmed().isEmpty())
        --end;
    m_lines.insert(end, text);
}

void DesktopEntry::remove(const QString &key)
{
    while (const auto line = lineOf(key))
        m_lines.removeAt(*line);
}

QByteArray DesktopEntry::content() const
{
    return m_lines.isEmpty() ? QByteArray() : m_lines.join('\n') + '\n';
}

QString execOfProgram(const QString &path)
{
    static const QString reserved = u" \t\n\"'\\><~|&;$*?#()`"_s;
    static const QString escapedInQuotes = u"\"`$\\"_s;
    QString exec;
    bool needsQuotes = false;
    for (const QChar character : path) {
        needsQuotes = needsQuotes || reserved.contains(character);
        if (escapedInQuotes.contains(character))
            exec += u'\\';
        else if (character == u'%')
            exec += u'%';
        exec += character;
    }
    return needsQuotes ? u'"' + exec + u'"' : exec;
}

QStringList wordsOfExec(const QString &exec)
{
    QStringList words;
    // Absent between two words; a quoted one may be empty.
    std::optional<QString> word;
    bool isQuoted = false;
    const auto endWord = [&] {
        if (word)
            words.append(*word);
        word.reset();
    };
    for (qsizetype i = 0; i < exec.size(); ++i) {
        if (exec[i] == u'"') {
            isQuoted = !isQuoted;
            word = word.value_or(QString());
        } else if (!isQuoted && exec[i].isSpace()) {
            endWord();
        } else if (exec[i] == u'%' && i + 1 < exec.size() && exec[i + 1] != u'%') {
            ++i;
        } else {
            if ((exec[i] == u'%' || exec[i] == u'\\') && i + 1 < exec.size())
                ++i;
            word = word.value_or(QString()) + exec[i];
        }
    }
    endWord();
    return words;
}

QString programOfExec(const QString &exec)
{
    return wordsOfExec(exec).value(0);
}

} // namespace ferrin
