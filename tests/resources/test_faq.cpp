// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"

#include <QColor>
#include <QFile>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace ferrin;
using namespace Qt::StringLiterals;

class FaqTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(QStringLiteral(FERRIN_TEST_DATA) + u"/../resources/faq/index.html"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_page = QString::fromUtf8(file.readAll());
        QXmlStreamReader reader(m_page);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement())
                take(reader);
            else if (reader.isCharacters())
                m_text += reader.text();
        }
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    }

    void needsNothingBesideItself()
    {
        for (const auto &element : { u"script"_s, u"link"_s, u"img"_s, u"iframe"_s, u"object"_s })
            QVERIFY2(!m_elements.contains(element), qPrintable(element));
        for (const auto &reference : { u"http:"_s, u"https:"_s, u"//"_s, u"url("_s, u"@import"_s })
            QVERIFY2(!m_page.contains(reference), qPrintable(reference));
    }

    void pointsOnlyAtItsOwnSections()
    {
        QCOMPARE(m_links.size(), 5);
        for (const QString &link : m_links) {
            QVERIFY2(link.startsWith(u'#'), qPrintable(link));
            QVERIFY2(m_ids.contains(link.mid(1)), qPrintable(link));
        }
    }

    void namesEveryAnswerOnce()
    {
        QCOMPARE(m_repeatedIds, QSet<QString>());
        QCOMPARE(m_elements.count(u"h3"_s), m_elements.count(u"div"_s));
    }

    void readsInHighContrast_data()
    {
        QTest::addColumn<QString>("query");
        QTest::newRow("light") << u"@media (prefers-contrast: more) {"_s;
        QTest::newRow("dark")
            << u"@media (prefers-contrast: more) and (prefers-color-scheme: dark) {"_s;
    }
    void readsInHighContrast()
    {
        QFETCH(QString, query);
        const qsizetype begin = m_page.indexOf(query);
        QVERIFY(begin > 0);
        const QString palette = m_page.mid(begin, m_page.indexOf(u"\n}"_s, begin) - begin);
        const auto named = [&](const QString &name) {
            const QString key = u"--"_s + name + u": "_s;
            return QColor(palette.mid(palette.indexOf(key) + key.size(), 7));
        };
        for (const QString &ground : { u"ground"_s, u"card"_s }) {
            for (const QString &text : { u"text"_s, u"quiet"_s, u"link"_s, u"line"_s })
                QVERIFY2(contrast(named(text), named(ground)) >= 7, qPrintable(text));
        }
    }

    void isLightAndDark()
    {
        QVERIFY(m_page.contains(u"prefers-color-scheme: dark"_s));
        QVERIFY(m_page.contains(u"name=\"color-scheme\" content=\"light dark\""_s));
    }

    void answersInTheProgramsOwnWords_data()
    {
        QTest::addColumn<QString>("words");
        for (const char *words :
             { "Service recommended", "Not available", "Getting info...", "?:??", "Unknown",
               "300 design cycles", "Time available", "Lifespan", "AC Power", "Launch at login",
               "Send Mail", "journalctl --user -t ferrin", "Wayland",
               "~/.config/org.ferrin.Ferrin/defaults.json" })
            QTest::newRow(words) << QString::fromLatin1(words);
    }
    void answersInTheProgramsOwnWords()
    {
        QFETCH(QString, words);
        QVERIFY(m_text.contains(words));
    }

private:
    void take(const QXmlStreamReader &reader)
    {
        const QXmlStreamAttributes attributes = reader.attributes();
        m_elements.append(reader.name().toString());
        if (attributes.hasAttribute(u"href"_s))
            m_links.append(attributes.value(u"href"_s).toString());
        const QString id = attributes.value(u"id"_s).toString();
        if (id.isEmpty())
            return;
        if (m_ids.contains(id))
            m_repeatedIds.insert(id);
        m_ids.insert(id);
    }

    QString m_page;
    QString m_text;
    QStringList m_elements;
    QStringList m_links;
    QSet<QString> m_ids;
    QSet<QString> m_repeatedIds;
};

QTEST_APPLESS_MAIN(FaqTest)
#include "test_faq.moc"
