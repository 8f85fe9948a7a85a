// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/stage.h"
#include "tests/support/testmain.h"

#include <QTextDocument>
#include <QTextFragment>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const QString note = u"The data, explanation text and recommendations shown in BATTERY HEALTH "
                     "section are based entirely on information exisiting in Apple Inc. official "
                     "website.\n\nYou can find more details in the Frequently Asked Questions "
                     "section in our web page."_s;
const QString question = u"Do you have any problem or question? Send us an email."_s;

struct Page
{
    Page()
    {
        page = stage.show("SettingsSupportView { focus: true }");
        links = test::itemsOfType(page, "LinkView");
        QList<QQuickItem *> texts = test::itemsOfType(page, "QQuickText");
        texts.removeIf([](const QQuickItem *text) {
            return !text->property("text").toString().contains(u"<u>");
        });
        paragraph = texts.size() == 1 ? texts.first() : nullptr;
    }

    test::SettingsStage stage;
    QQuickItem *page = nullptr;
    /// The text that has an underlined word.
    QQuickItem *paragraph = nullptr;
    QList<QQuickItem *> links;
};

/// The parts of a marked-up text that are underlined.
QStringList underlined(const QTextDocument &document)
{
    QStringList parts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().fontUnderline())
                parts.append(part.fragment().text());
        }
    }
    return parts;
}

} // namespace

class TestSupportPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheNoteAndTheWayToWrite()
    {
        const Page f;
        QStringList texts = test::textsOf(f.page);
        QCOMPARE(texts.size(), 6);
        texts.removeAt(1);
        QCOMPARE(texts,
                 (QStringList { u"A note on battery health"_s, u"Ferrin FAQ"_s, u"Contact us"_s,
                                question, u"Send Mail"_s }));
        QCOMPARE(f.page->height(), 500);
        for (const char *section : { "NoteOnHealthView", "ContactUsView" }) {
            const QQuickItem *const view = test::itemsOfType(f.page, section).constFirst();
            QCOMPARE(view->x() + view->parentItem()->x(), 20);
            QCOMPARE(view->width(), 460);
        }
        QCOMPARE(test::itemsOfType(f.page, "NoteOnHealthView").constFirst()->mapToScene({}).y(),
                 20);
    }

    void tellsTheNoteInOneParagraphWithOneUnderlinedWord()
    {
        const Page f;
        QVERIFY(f.paragraph);
        QTextDocument document;
        document.setHtml(f.paragraph->property("text").toString());
        QCOMPARE(document.toPlainText(), note);
        QCOMPARE(underlined(document), QStringList { u"entirely"_s });
        QVERIFY(f.paragraph->property("textFormat").toInt() != Qt::PlainText);
    }

    void headsEachPartInTheSystemsFontOfTwelve()
    {
        const Page f;
        for (QQuickItem *const text : test::itemsOfType(f.page, "QQuickText")) {
            if (test::spokenRoleOf(text) != QAccessible::Heading)
                continue;
            QCOMPARE(text->property("font").value<QFont>().pixelSize(), 12);
            QCOMPARE(text->property("font").value<QFont>().weight(), QFont::Normal);
        }
    }

    void leadsToThePageAndToTheMail()
    {
        Page f;
        QCOMPARE(f.links.size(), 2);
        f.stage.click(f.links[0]);
        f.stage.click(f.links[1]);
        QCOMPARE(
            f.stage.opener.opened,
            (QList<QUrl> { QUrl(u"file:///faq.html"_s), QUrl(u"mailto:support@example.org"_s) }));
        QStringList symbols;
        for (QQuickItem *const link : f.links)
            symbols.append(link->property("symbol").toString());
        QCOMPARE(symbols, (QStringList { u"link"_s, u"envelope"_s }));
    }

    void saysSoWhereThereIsNoAddressToWriteTo()
    {
        Vendor vendor = test::someVendor();
        vendor.supportMail.clear();
        test::SettingsStage stage(test::SceneStage::plainDesktop, vendor);
        QQuickItem *const view = stage.show("ContactUsView { width: 460 }");
        QCOMPARE(test::textsOf(view),
                 (QStringList { u"Contact us"_s,
                                u"This build of Ferrin has no support address. Please ask whoever "
                                "you got it from."_s }));
    }

    void isWorkedByTheKeyboardAlone()
    {
        Page f;
        f.stage.window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&f.stage.window));
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.links[0]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.links[1]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Space);
        QCOMPARE(f.stage.opener.opened.size(), 2);
    }

    void looksLikeWhatItIs()
    {
        Page f;
        QQuickItem *const label = test::itemsOfType(f.links[0], "QQuickText").constFirst();
        QVERIFY(label->property("font").value<QFont>().underline());
        QCOMPARE(label->property("color").value<QColor>().name(), f.stage.colorNamed("link"));
        QTest::mouseMove(&f.stage.window, test::centreOf(f.links[0]));
        QTRY_COMPARE(label->property("color").value<QColor>().name(),
                     f.stage.colorNamed("linkHovered"));
        QTest::mouseMove(&f.stage.window, QPoint(490, 490));
        QTRY_COMPARE(label->property("color").value<QColor>().name(), f.stage.colorNamed("link"));
    }

    void tellsItselfToAScreenReader()
    {
        Page f;
        QCOMPARE(test::spokenNameOf(f.paragraph), note);
        QCOMPARE(test::spokenRoleOf(f.paragraph), QAccessible::StaticText);
        QCOMPARE(test::spokenNameOf(f.links[0]), u"Ferrin FAQ"_s);
        QCOMPARE(test::spokenNameOf(f.links[1]), u"Send Mail"_s);
        QCOMPARE(test::spokenRoleOf(f.links[0]), QAccessible::Link);
        QCOMPARE(test::spokenRoleOf(f.links[1]), QAccessible::Link);
    }
};

FERRIN_TEST(QGuiApplication, TestSupportPage)
#include "test_supportpage.moc"
