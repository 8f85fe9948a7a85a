// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/dashboardwindow.h"
#include "popover/popoverdesktop.h"
#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;

namespace {

struct FakeDesktop final : PopoverDesktop
{
    void focus(QWindow &) override { ++requests; }

    int requests = 0;
};

void takeFocus(QWindow &window)
{
    QFocusEvent event(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&window, &event);
}

} // namespace

class TestDashboardWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForTheFocusAgainWhenItIsTakenWhileItOpens()
    {
        FakeDesktop desktop;
        test::Stage stage(desktop);
        DashboardWindow window(stage.engine);
        const QSignalSpy lost(&window, &DashboardWindow::focusLost);
        window.openAt({});
        QCOMPARE(desktop.requests, 1);
        takeFocus(window);
        QCOMPARE(desktop.requests, 2);
        QCOMPARE(lost.count(), 0);
    }

    void closesAtEscapeAndAtCtrlW_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Escape") << Qt::Key_Escape << Qt::KeyboardModifiers();
        QTest::newRow("Ctrl+W") << Qt::Key_W << Qt::KeyboardModifiers(Qt::ControlModifier);
    }

    void closesAtEscapeAndAtCtrlW()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        test::Stage stage;
        DashboardWindow window(stage.engine);
        const QSignalSpy dismissals(&window, &DashboardWindow::dismissed);
        window.openAt({});
        QTest::keyClick(&window, Qt::Key_W);
        QCOMPARE(dismissals.count(), 0);
        QTest::keyClick(&window, key, modifiers);
        QCOMPARE(dismissals.count(), 1);
    }

    void asksForHelpAtF1()
    {
        test::Stage stage;
        DashboardWindow window(stage.engine);
        const QSignalSpy requests(&stage.dashboard, &Dashboard::helpRequested);
        window.openAt({});
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_F1);
        QCOMPARE(requests.count(), 1);
    }

    void tellsOfTheFocusThatIsLostLater()
    {
        FakeDesktop desktop;
        test::Stage stage(desktop);
        DashboardWindow window(stage.engine);
        const QSignalSpy lost(&window, &DashboardWindow::focusLost);
        window.openAt({});
        QTRY_VERIFY((takeFocus(window), lost.count() > 0));
    }
};

FERRIN_TEST(QGuiApplication, TestDashboardWindow)
#include "test_dashboardwindow.moc"
