// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// What a docked item asks of its tray, and when it shows a tool tip.

#include "menubar/itemhostingview.h"
#include "platform/linux/ownwindows/tooltip.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/xembed/trayitem.h"
#include "tests/platform/support/contents.h"
#include "tests/platform/support/faketray.h"
#include "tests/platform/support/privatescreen.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Counts what the application is told of pointers that come over its windows.
class EnterCount : public QAbstractNativeEventFilter
{
public:
    EnterCount() { QCoreApplication::instance()->installNativeEventFilter(this); }

    [[nodiscard]] int count() const { return m_count; }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *const event = static_cast<const xcb_generic_event_t *>(message);
        m_count += (event->response_type & 0x7f) == XCB_ENTER_NOTIFY;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

class TrayWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void asksForNoLessThanASmallIconsSize();
    void showsAToolTipUnderARestingPointer();
    void showsNoneWhileTheDashboardIsOpen();
    void takesTheEndOfAGrabForNoVisit();
    void asksAFewTimesWhereTheTrayGivesItNoRoom();
    void staysWhereTheTrayGivesItRoom();
    void cleanup();

private:
    [[nodiscard]] xcb_window_t requested();
    /// Brings the pointer over the item, and waits for as long as its tool tip would take to come.
    void visit(xcb_notify_mode_t mode = XCB_NOTIFY_MODE_NORMAL);
    /// How many tool tips are shown.
    [[nodiscard]] qsizetype toolTips() const;

    std::unique_ptr<FakeTray> m_tray;
    std::unique_ptr<PanelColors> m_colors;
    std::unique_ptr<TrayItem> m_item;
    xcb_window_t m_icon = 0;
};

void TrayWindowTest::init()
{
    m_tray = std::make_unique<FakeTray>();
    m_colors = std::make_unique<PanelColors>();
    m_item = std::make_unique<TrayItem>(*m_colors);
    auto view = std::make_unique<ItemHostingView>();
    view->setContent(dischargingAt(37, u"4:29"_s));
    m_item->addContentView(std::move(view));
    m_item->dockInto(m_tray->window());
    m_icon = requested();
    m_tray->takeIn(m_icon, { 24, 24 });
    QTRY_VERIFY(!m_item->place().item.isEmpty());
}

void TrayWindowTest::cleanup()
{
    m_item.reset();
    m_colors.reset();
    m_tray.reset();
}

xcb_window_t TrayWindowTest::requested()
{
    std::optional<xcb_window_t> icon;
    [&] { QTRY_VERIFY(icon || (icon = m_tray->request())); }();
    return icon.value_or(0);
}

qsizetype TrayWindowTest::toolTips() const
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::ranges::count_if(windows, [](const QWindow *window) {
        return window->type() == Qt::ToolTip && window->isVisible();
    });
}

void TrayWindowTest::visit(xcb_notify_mode_t mode)
{
    const EnterCount heard;
    m_tray->enter(m_icon, mode);
    [&] { QTRY_COMPARE(heard.count(), 1); }();
    // Of two pointers that rest, the one that came first has its tool tip first.
    ToolTip later;
    later.showSoon(u"later"_s, m_item->place(), {});
    [&] { QTRY_VERIFY(later.window()); }();
}

void TrayWindowTest::asksForNoLessThanASmallIconsSize()
{
    QCOMPARE(m_tray->leastSizeOf(m_icon), QSize(22, 22));
}

void TrayWindowTest::showsAToolTipUnderARestingPointer()
{
    visit();
    QCOMPARE(toolTips(), 1);
}

void TrayWindowTest::showsNoneWhileTheDashboardIsOpen()
{
    m_item->setHighlighted(true);
    visit();
    QCOMPARE(toolTips(), 0);
    m_item->setHighlighted(false);
    QCOMPARE(toolTips(), 0);
}

void TrayWindowTest::takesTheEndOfAGrabForNoVisit()
{
    visit(XCB_NOTIFY_MODE_UNGRAB);
    QCOMPARE(toolTips(), 0);
}

void TrayWindowTest::asksAFewTimesWhereTheTrayGivesItNoRoom()
{
    m_item->setLayoutTime(0ms);
    m_item->dockInto(m_tray->window());
    for (int times = 0; times < 4; ++times)
        m_tray->takeInWithoutRoom(requested());
    QTRY_VERIFY(!m_item->place().item.isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(!m_tray->request());
    // Another tray, or the same one anew, is asked as often.
    m_item->dockInto(m_tray->window());
    m_tray->takeInWithoutRoom(requested());
    m_tray->takeIn(requested(), { 24, 24 });
    QTRY_COMPARE(m_item->place().item, QRect(2, 2, 24, 24));
}

void TrayWindowTest::staysWhereTheTrayGivesItRoom()
{
    m_item->setLayoutTime(0ms);
    m_item->dockInto(m_tray->window());
    m_tray->takeIn(requested(), { 24, 24 });
    QTRY_COMPARE(m_item->place().item, QRect(2, 2, 24, 24));
    QCoreApplication::processEvents();
    QVERIFY(!m_tray->request());
}

int main(int argc, char **argv)
{
    const PrivateScreen screen;
    const QGuiApplication application(argc, argv);
    TrayWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_traywindow.moc"
