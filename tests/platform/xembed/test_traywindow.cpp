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
    void cleanup();

private:
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
    std::optional<xcb_window_t> icon;
    QTRY_VERIFY(icon || (icon = m_tray->request()));
    m_icon = *icon;
    m_tray->takeIn(m_icon, { 24, 24 });
    QTRY_VERIFY(!m_item->place().item.isEmpty());
}

void TrayWindowTest::cleanup()
{
    m_item.reset();
    m_colors.reset();
    m_tray.reset();
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

int main(int argc, char **argv)
{
    const PrivateScreen screen;
    const QGuiApplication application(argc, argv);
    TrayWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_traywindow.moc"
