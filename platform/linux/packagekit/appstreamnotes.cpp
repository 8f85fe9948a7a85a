// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/appstreamnotes.h"

#include <QDateTime>
#include <QStringList>
#include <QTimeZone>
#include <QXmlStreamReader>

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestNotes = 8000;

QString textOf(QXmlStreamReader &xml)
{
    return xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
}

void readList(QXmlStreamReader &xml, QStringList *paragraphs)
{
    QStringList items;
    while (xml.readNextStartElement())
        items.append(u"• "_s + textOf(xml));
    paragraphs->append(items.join(u'\n'));
}

QString readDescription(QXmlStreamReader &xml)
{
    QStringList paragraphs;
    while (xml.readNextStartElement()) {
        if (xml.name() == "ul"_L1 || xml.name() == "ol"_L1)
            readList(xml, &paragraphs);
        else
            paragraphs.append(textOf(xml));
    }
    return paragraphs.join(u"\n\n"_s);
}

std::optional<QDate> dateOf(const QXmlStreamAttributes &attributes)
{
    const QString text = attributes.value("date"_L1).toString();
    const QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    if (date.isValid())
        return date;
    bool isNumber = false;
    const qint64 seconds = attributes.value("timestamp"_L1).toLongLong(&isNumber);
    return isNumber ? std::optional(QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc()).date())
                    : std::nullopt;
}

ReleaseNotes readRelease(QXmlStreamReader &xml)
{
    ReleaseNotes notes { {}, dateOf(xml.attributes()) };
    while (xml.readNextStartElement()) {
        // Translations come after the untranslated one.
        if (xml.name() == "description"_L1 && notes.text.isEmpty())
            notes.text = harmlessNotes(readDescription(xml));
        else
            xml.skipCurrentElement();
    }
    return notes;
}

} // namespace

ReleaseNotes notesFromAppStream(const QByteArray &xml, const QString &version)
{
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == "release"_L1
            && reader.attributes().value("version"_L1) == version)
            return readRelease(reader);
    }
    return {};
}

QString harmlessNotes(const QString &text)
{
    QString harmless = text.left(longestNotes);
    harmless.removeIf([](QChar character) {
        return character != u'\n' && character.category() == QChar::Other_Control;
    });
    // Some turn the direction of all that follows.
    harmless.removeIf([](QChar character) { return character.category() == QChar::Other_Format; });
    if (text.size() > longestNotes)
        harmless.append(u'…');
    return harmless.trimmed();
}

} // namespace ferrin
