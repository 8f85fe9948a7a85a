// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/about/bundleinformation.h"
#include "state/bundle.h"
#include "tests/settingswindow/stage.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QFile>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Page
{
    Page()
    {
        page = stage.show("SettingsAboutView { focus: true; width: 701 }");
        button = test::itemsOfType(page, "ProminentButton").constFirst();
        QTest::mouseMove(&stage.window, QPoint(5, 495));
    }

    [[nodiscard]] QQuickItem *sheet()
    {
        const QList<QQuickItem *> found
            = test::itemsOfType(stage.window.contentItem(), "AcknowledgementsView");
        return found.isEmpty() ? nullptr : found.first();
    }
    QQuickItem *openSheet()
    {
        stage.click(button);
        // What has not been painted has not been laid out.
        (void)stage.picture();
        return sheet();
    }
    [[nodiscard]] QQuickItem *done()
    {
        return test::itemsOfType(sheet(), "ProminentButton").constFirst();
    }
    [[nodiscard]] QQuickItem *view()
    {
        return test::itemsOfType(sheet(), "QQuickFlickable").constFirst();
    }
    [[nodiscard]] qreal scrolled() { return view()->property("contentY").toReal(); }
    [[nodiscard]] qreal end()
    {
        return view()->property("contentHeight").toReal() - view()->height();
    }
    void press(Qt::Key key) { QTest::keyClick(&stage.window, key); }

    test::SettingsStage stage;
    QQuickItem *page = nullptr;
    QQuickItem *button = nullptr;
};

QString compiledIn(const QString &name)
{
    QFile file(u":/%1.txt"_s.arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

} // namespace

class TestAboutPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatTheProgramIsAndWhoMadeIt()
    {
        const Page f;
        const QString version
            = u"Version %1 (%2)"_s.arg(Bundle::main().shortVersion(), Bundle::main().buildNumber());
        QCOMPARE(
            test::textsOf(f.page),
            (QStringList {
                u"Ferrin"_s, version, u"Credits & Acknowledgements"_s,
                u"Sparkle: Sparkle Project"_s, u"MenuBarExtraAccess: The Ferrin developers"_s,
                u"LaunchAtLogin: The Ferrin developers"_s, u"Qt: The Qt Company and contributors"_s,
                u"UPower: David Zeuthen, Richard Hughes"_s,
                u"PackageKit: Richard Hughes, Matthias Klumpp"_s,
                u"libudev, libsystemd: the systemd developers"_s, u"libxcb: the XCB contributors"_s,
                u"libwayland: the Wayland contributors"_s, u"Acknowledgements"_s,
                u"The Ferrin developers"_s, u"Copyright © 2010–2025"_s,
                u"All rights reserved, except as granted by the GNU GPL, version 3 "
                "or later."_s }));
        QCOMPARE(f.page->height(), 500);
    }

    void showsTheApplicationsIcon()
    {
        Page f;
        QQuickItem *const icon = test::itemsOfType(f.page, "QQuickImage").constFirst();
        QCOMPARE(icon->property("status").toInt(), 1);
        const QImage picture = f.stage.picture();
        const QColor ground = picture.pixelColor(5, 5);
        int painted = 0;
        for (int y = 0; y < 96; ++y) {
            for (int x = 0; x < 96; ++x)
                painted += picture.pixelColor(icon->mapToScene(QPointF(x, y)).toPoint()) != ground;
        }
        QVERIFY(painted > 4000);
    }

    void writesTheMakersLinesInTheirFonts()
    {
        Page f;
        const QList<QQuickItem *> lines = test::itemsOfType(
            test::itemsOfType(f.page, "CopyrightView").constFirst(), "QQuickText");
        QCOMPARE(lines.size(), 3);
        for (const QQuickItem *const line : lines) {
            const QFont font = line->property("font").value<QFont>();
            QCOMPARE(font.pixelSize(), 10);
            QCOMPARE(font.weight(), line == lines[0] ? QFont::DemiBold : QFont::Normal);
        }
        QCOMPARE(lines[0]->property("color").value<QColor>().name(),
                 f.stage.colorNamed("settingsAck"));
    }

    void presentsTheAcknowledgementsOnASheet()
    {
        Page f;
        QVERIFY(!f.sheet());
        QQuickItem *const sheet = f.openSheet();
        QVERIFY(sheet);
        QCOMPARE(sheet->size(), QSizeF(600, 400));
        QCOMPARE(test::textsOf(sheet),
                 (QStringList { compiledIn(u"AckSparkle"_s), compiledIn(u"AckLaunchAtLogin"_s),
                                compiledIn(u"AckMenuBarExtraAcces"_s), u"Done"_s }));
        QCOMPARE(sheet->property("textAckSparkle").toString(), compiledIn(u"AckSparkle"_s));
        QVERIFY(!compiledIn(u"AckSparkle"_s).isEmpty());
    }

    void showsAnEmptyTextForOneThatIsMissingAndTellsNobody()
    {
        test::LogCapture log;
        QCOMPARE(BundleInformation().text(u"AckNobody"_s), QString());
        QVERIFY(log.take().isEmpty());
    }

    void leavesThePageUnchangedWhenTheSheetOpensAndCloses_data()
    {
        QTest::addColumn<bool>("byKeys");
        QTest::newRow("by keys") << true;
        QTest::newRow("by the pointer") << false;
    }

    void leavesThePageUnchangedWhenTheSheetOpensAndCloses()
    {
        QFETCH(bool, byKeys);
        Page f;
        f.stage.window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&f.stage.window));
        // The mark of the focus is there before the sheet as it is after it, from a second key on.
        if (byKeys) {
            f.press(Qt::Key_Tab);
            f.press(Qt::Key_Shift);
        }
        f.stage.status.setSettingsItemSelected(SettingsMenuButton::about);
        const QStringList texts = test::textsOf(f.page);
        const QImage before = f.stage.picture();
        if (byKeys)
            f.press(Qt::Key_Return);
        else
            f.openSheet();
        QVERIFY(f.sheet());
        QVERIFY(f.stage.picture() != before);
        if (byKeys)
            f.press(Qt::Key_Escape);
        else
            f.stage.click(f.done());
        QVERIFY(!f.sheet());
        QTest::mouseMove(&f.stage.window, QPoint(5, 495));
        QCOMPARE(test::textsOf(f.page), texts);
        QTRY_COMPARE(f.stage.picture(), before);
        QCOMPARE(f.stage.status.settingsItemSelected(), SettingsMenuButton::about);
        QVERIFY(f.page->isEnabled());
        QVERIFY(f.openSheet());
    }

    void dimsThePageAndLetsItRest()
    {
        Page f;
        const QColor before = f.stage.picture().pixelColor(20, 20);
        f.openSheet();
        QVERIFY(f.stage.picture().pixelColor(20, 20).lightness() < before.lightness());
        QVERIFY(!f.page->isEnabled());
        // A press beside the sheet does nothing, on the page neither.
        QTest::mouseClick(&f.stage.window, Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(f.sheet());
    }

    void keepsTheFocusOnTheSheetAndGivesItBack()
    {
        Page f;
        f.stage.window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&f.stage.window));
        f.press(Qt::Key_Tab);
        QVERIFY(f.button->hasActiveFocus());
        f.press(Qt::Key_Return);
        QVERIFY(f.sheet());
        QVERIFY(f.done()->hasActiveFocus());
        f.press(Qt::Key_Tab);
        QVERIFY(f.done()->hasActiveFocus());
        f.press(Qt::Key_Return);
        QVERIFY(!f.sheet());
        QVERIFY(f.button->hasActiveFocus());
    }

    void scrollsByKeys()
    {
        Page f;
        f.openSheet();
        QVERIFY(f.end() > 0);
        f.press(Qt::Key_Up);
        QCOMPARE(f.scrolled(), 0);
        f.press(Qt::Key_Down);
        QVERIFY(f.scrolled() > 0);
        f.press(Qt::Key_Up);
        QCOMPARE(f.scrolled(), 0);
        f.press(Qt::Key_PageDown);
        QVERIFY(f.scrolled() > 200);
        f.press(Qt::Key_End);
        QCOMPARE(f.scrolled(), f.end());
        f.press(Qt::Key_Down);
        QCOMPARE(f.scrolled(), f.end());
        f.press(Qt::Key_PageUp);
        QVERIFY(f.scrolled() < f.end());
        f.press(Qt::Key_Home);
        QCOMPARE(f.scrolled(), 0);
    }

    void scrollsByTheWheel()
    {
        Page f;
        f.openSheet();
        const QPointF at = test::centreOf(f.view());
        QWheelEvent turn(at, f.stage.window.mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&f.stage.window, &turn);
        QTRY_VERIFY(f.scrolled() > 0);
    }

    void tellsTheSheetToAScreenReader()
    {
        Page f;
        f.openSheet();
        QQuickItem *const sheet
            = test::itemsOfType(f.stage.window.contentItem(), "Sheet").constFirst();
        QCOMPARE(test::spokenRoleOf(sheet), QAccessible::Dialog);
        QCOMPARE(test::spokenNameOf(sheet), u"Acknowledgements"_s);
        QCOMPARE(test::spokenNameOf(test::itemsOfType(f.sheet(), "QQuickText").constFirst()),
                 compiledIn(u"AckSparkle"_s));
    }
};

FERRIN_TEST(QGuiApplication, TestAboutPage)
#include "test_aboutpage.moc"
