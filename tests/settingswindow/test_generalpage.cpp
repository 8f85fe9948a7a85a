// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/stage.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Page
{
    explicit Page(LoginItemStatus status = LoginItemStatus::notRegistered)
    {
        stage.loginItem.current = status;
        page = stage.show("SettingsGeneralView { focus: true }");
    }

    [[nodiscard]] QQuickItem *only(const char *type)
    {
        const QList<QQuickItem *> found = test::itemsOfType(page, type);
        return found.size() == 1 ? found.first() : nullptr;
    }
    [[nodiscard]] QQuickItem *toggle() { return only("LaunchAtLoginToggle"); }
    [[nodiscard]] bool isOn() { return toggle()->property("isOn").toBool(); }
    /// What can be pressed to open the battery settings.
    [[nodiscard]] QQuickItem *row()
    {
        return test::itemsOfType(only("OpenSystemSettingsView"), "Pressable").constFirst();
    }
    [[nodiscard]] bool activate()
    {
        stage.window.requestActivate();
        return QTest::qWaitForWindowActive(&stage.window);
    }

    test::SettingsStage stage;
    QQuickItem *page = nullptr;
};

const QUrl batteryPane(u"x-apple.systempreferences:com.apple.preference.battery"_s);

} // namespace

class TestGeneralPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsItsSectionsInTheirOrder()
    {
        const Page f;
        QCOMPARE(test::textsOf(f.page),
                 (QStringList { u"App start"_s, u"Launch at login"_s, u"Color theme"_s,
                                u"Pick a theme"_s, u"System"_s, u"Light"_s, u"Dark"_s,
                                u"System Settings"_s, u"Open System Settings battery section"_s,
                                u"Updates"_s, u"Check for Updates\u2026"_s,
                                u"Automatically check for updates"_s,
                                u"Automatically download updates"_s }));
    }

    void standsOnItsGroundWithRoomAround()
    {
        Page f;
        QCOMPARE(f.page->size(), QSizeF(500, 500));
        QCOMPARE(f.stage.picture().pixelColor(250, 490).name(),
                 f.stage.colorNamed("settingsBackground"));
        qreal y = 20;
        for (const char *section :
             { "LauchAtLoginView", "ThemePicker", "OpenSystemSettingsView", "AppUpdateView" }) {
            const QQuickItem *const view = f.only(section);
            QVERIFY2(view, section);
            QCOMPARE(view->mapToScene({}), QPointF(20, y));
            QCOMPARE(view->width(), 460);
            y += view->height() + 35;
        }
        QVERIFY(y - 35 <= 480);
    }

    void registersTheLoginItemAtAClick()
    {
        Page f;
        const test::LogCapture log;
        QVERIFY(!f.isOn());
        f.stage.click(f.toggle());
        QCOMPARE(f.stage.loginItem.calls, QStringList { u"register"_s });
        QVERIFY(f.isOn());
        f.stage.click(f.toggle());
        QCOMPARE(f.stage.loginItem.calls, (QStringList { u"register"_s, u"unregister"_s }));
        QVERIFY(!f.isOn());
    }

    void registersAnewWhenTurnedOnWhileEnabled()
    {
        Page f;
        const test::LogCapture log;
        f.stage.loginItem.current = LoginItemStatus::enabled;
        f.stage.click(f.toggle());
        QCOMPARE(f.stage.loginItem.calls, (QStringList { u"unregister"_s, u"register"_s }));
        QVERIFY(f.isOn());
    }

    void showsOffAndLogsOneLineWhenTheRegistrationIsRefused()
    {
        Page f(LoginItemStatus::requiresApproval);
        test::LogCapture log;
        f.stage.loginItem.registerError = u"Waiting for the user\u2019s approval"_s;
        f.stage.click(f.toggle());
        QVERIFY(!f.isOn());
        QCOMPARE(log.take(),
                 QStringList { u"error: Failed to enable launch at login: "
                               "Waiting for the user\u2019s approval"_s });
    }

    void showsOnAndLogsOneLineWhenTheItemWouldNotGo()
    {
        Page f(LoginItemStatus::enabled);
        test::LogCapture log;
        f.stage.loginItem.unregisterError = u"Read-only file system"_s;
        f.stage.click(f.toggle());
        QVERIFY(f.isOn());
        QCOMPARE(log.take(),
                 QStringList { u"error: Failed to disable launch at login: "
                               "Read-only file system"_s });
    }

    void showsWhatWasChangedElsewhereOnceTheWindowIsInFront()
    {
        Page f;
        QVERIFY(f.activate());
        QQuickWindow other;
        other.show();
        other.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        f.stage.loginItem.current = LoginItemStatus::enabled;
        QVERIFY(!f.isOn());
        QVERIFY(f.activate());
        QVERIFY(f.isOn());
        QVERIFY(f.stage.loginItem.calls.isEmpty());
    }

    void opensTheBatteryPaneAndThenClosesTheWindow()
    {
        Page f;
        qsizetype openedBefore = 0;
        connect(&f.stage.settings, &Settings::dismissRequested, this,
                [&] { openedBefore = f.stage.opener.opened.size(); });
        f.stage.click(f.row());
        QCOMPARE(f.stage.opener.opened, QList<QUrl> { batteryPane });
        QCOMPARE(openedBefore, 1);
    }

    void closesTheWindowAloneForALinkThatIsInvalid()
    {
        Page f;
        const QSignalSpy dismissals(&f.stage.settings, &Settings::dismissRequested);
        f.only("OpenSystemSettingsView")->setProperty("scheme", u"no scheme"_s);
        f.stage.click(f.row());
        QVERIFY(f.stage.opener.opened.isEmpty());
        QCOMPARE(dismissals.count(), 1);
    }

    void staysOpenAndSaysSoWhereNothingCouldBeOpened()
    {
        Page f;
        const QSignalSpy dismissals(&f.stage.settings, &Settings::dismissRequested);
        f.stage.opener.canOpen = false;
        f.stage.click(f.row());
        QCOMPARE(f.stage.opener.opened, QList<QUrl> { batteryPane });
        QCOMPARE(dismissals.count(), 0);
        const QString line = u"This desktop has no battery settings that Ferrin can open."_s;
        QVERIFY(test::textsOf(f.row()).contains(line));
        QCOMPARE(test::spokenNameOf(f.row()), line);
        // It may have been installed meanwhile.
        f.stage.opener.canOpen = true;
        f.stage.click(f.row());
        QCOMPARE(dismissals.count(), 1);
    }

    void marksTheRowUnderThePointer()
    {
        Page f;
        const QPoint besideTheTile = f.row()->mapToScene(QPointF(33, 2)).toPoint();
        QTest::mouseMove(&f.stage.window, QPoint(250, 490));
        const QColor atRest = f.stage.picture().pixelColor(besideTheTile);
        QCOMPARE(atRest.name(), f.stage.colorNamed("settingsRectangle"));
        QTest::mouseMove(&f.stage.window, test::centreOf(f.row()));
        QTRY_VERIFY(f.stage.picture().pixelColor(besideTheTile) != atRest);
        QTest::mouseMove(&f.stage.window, QPoint(250, 490));
        QTRY_COMPARE(f.stage.picture().pixelColor(besideTheTile), atRest);
    }

    void leadsToTheBatteryByAWhiteSymbolOnAGreenTile()
    {
        Page f;
        QQuickItem *const symbol = test::itemsOfType(f.row(), "ferrin::Symbol").constFirst();
        QCOMPARE(symbol->property("name").toString(), u"battery.100"_s);
        QCOMPARE(symbol->property("size").toReal(), 14);
        QCOMPARE(symbol->property("color").value<QColor>().name(),
                 f.stage.colorNamed("tileSymbol"));
        const QQuickItem *const tile = symbol->parentItem();
        QCOMPARE(tile->size(), QSizeF(28, 28));
        QCOMPARE(tile->opacity(), 1);
        QCOMPARE(tile->property("radius").toReal(), 6);
        QCOMPARE(tile->property("color").value<QColor>().name(), f.stage.colorNamed("systemGreen"));
        // Something of its shadow lies below it, and nothing far away.
        const QPoint foot = tile->mapToScene(QPointF(14, 29)).toPoint();
        const QImage picture = f.stage.picture();
        QVERIFY(picture.pixelColor(foot).lightness()
                < picture.pixelColor(foot + QPoint(0, 9)).lightness());
    }

    void isWorkedByTheKeyboardAlone()
    {
        Page f;
        const test::LogCapture log;
        QVERIFY(f.activate());
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.toggle()->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Space);
        QVERIFY(f.isOn());
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.only("ThemePicker")->isAncestorOf(f.stage.window.activeFocusItem()));
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.row()->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QCOMPARE(f.stage.opener.opened, QList<QUrl> { batteryPane });
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(&f.stage.window, Qt::Key_Tab);
            QVERIFY(f.only("AppUpdateView")->isAncestorOf(f.stage.window.activeFocusItem()));
        }
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.toggle()->hasActiveFocus());
    }

    void tellsItselfToAScreenReader()
    {
        Page f(LoginItemStatus::enabled);
        QCOMPARE(test::spokenNameOf(f.toggle()), u"Launch at login"_s);
        QCOMPARE(test::spokenRoleOf(f.toggle()), QAccessible::CheckBox);
        QVERIFY(QAccessible::queryAccessibleInterface(f.toggle())->state().checked);
        QCOMPARE(test::spokenNameOf(f.row()), u"Open System Settings battery section"_s);
        QCOMPARE(test::spokenRoleOf(f.row()), QAccessible::Button);
    }
};

FERRIN_TEST(QGuiApplication, TestGeneralPage)
#include "test_generalpage.moc"
