// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/updates/releasenotes.h"
#include "tests/support/testmain.h"

#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using namespace ferrin;
using namespace Qt::StringLiterals;

class TestReleaseNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatOnlyDressesTheWords()
    {
        const QString notes = u"## New\n\n- **Quieter**, and _prettier_! [sic]\n- `code`\n"_s;
        QCOMPARE(harmlessMarkdown(notes), notes);
    }

    void leavesNothingToLoad_data()
    {
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QString>("shown");
        QTest::newRow("image") << u"a ![b](http://example.org/c.png)"_s << u"a b"_s;
        QTest::newRow("local image") << u"![b](file:///etc/passwd)"_s << u"b"_s;
        QTest::newRow("link") << u"[b](https://example.org)"_s << u"b"_s;
        QTest::newRow("image in a link") << u"[![b](c.png)](https://example.org)"_s << u"b"_s;
        QTest::newRow("image that another leaves") << u"!![[b]](c.png)"_s << u"[[b]](c.png)"_s;
        QTest::newRow("image by reference")
            << u"![b][c]\n\n[c]: http://example.org/c.png"_s << u"b"_s;
        QTest::newRow("image that a link leaves")
            << u"[!](d)[b][c]\n\n[c]: http://example.org/c.png"_s << u"b"_s;
        QTest::newRow("HTML") << u"<img src=\"http://example.org/c.png\">"_s
                              << u"<img src=\"http://example.org/c.png\">"_s;
    }

    void leavesNothingToLoad()
    {
        QFETCH(QString, notes);
        QFETCH(QString, shown);
        QTextDocument document;
        document.setMarkdown(harmlessMarkdown(notes));
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part)
                QVERIFY(!part.fragment().charFormat().isImageFormat());
        }
        QVERIFY(!document.toPlainText().contains(QChar::ObjectReplacementCharacter));
        if (!shown.contains(u'['))
            QCOMPARE(document.toPlainText().trimmed(), shown);
    }

    void hasLettersOfOneSizeAlone()
    {
        QTextDocument document;
        document.setMarkdown(evenMarkdown(u"# Large\n\n## New\n\n- **Quieter** than #2.\n"_s));
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                QCOMPARE(format.intProperty(QTextFormat::FontSizeAdjustment), 0);
            }
        }
        QCOMPARE(document.toPlainText(), u"Large\nNew\nQuieter than #2."_s);
    }

    void leansWhatIsEmphasised()
    {
        QTextDocument document;
        document.setMarkdown(evenMarkdown(u"It is _much_ quieter, says some_one_else."_s));
        const QTextCharFormat format = (++document.begin().begin()).fragment().charFormat();
        QVERIFY(format.fontItalic());
        QVERIFY(!format.fontUnderline());
        QCOMPARE(document.toPlainText(), u"It is much quieter, says some_one_else."_s);
    }
};

FERRIN_TEST(QGuiApplication, TestReleaseNotes)
#include "test_releasenotes.moc"
