// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemhostingview.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/statusarea/statusareachooser.h"
#include "platform/linux/xembed/dockedwindow.h"
#include "platform/linux/xembed/traycolors.h"
#include "platform/linux/xembed/trayitem.h"
#include "platform/linux/xembed/trayowner.h"
#include "tests/platform/support/contents.h"
#include "tests/platform/support/faketray.h"
#include "tests/platform/support/fakewatcher.h"
#include "tests/platform/support/privatescreen.h"
#include "tests/support/privatebus.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int leftButton = 1;
constexpr int rightButton = 3;
const QColor barGround(0x20, 0x40, 0x60);

std::unique_ptr<ItemHostingView> viewOf(const ItemContent &content)
{
    auto view = std::make_unique<ItemHostingView>();
    view->setContent(content);
    return view;
}

} // namespace

class TrayDockingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void followsTheOwnerOfTheTrayAsItComesAndGoes();
    void followsTheTrayToAnotherOwner();
    void hearsOfNewColors();
    void hearsWhetherThePanelStands();
    void asksTheTrayToTakeItIn();
    void wantsAPictureAtEverySizeThatTheTrayGivesIt();
    void showsItsPictureOnTheTraysOwnGround();
    void hasAnAlphaOfItsOwnWhereTheTrayBlends();
    void tellsOfAClick();
    void aClickThatEndsElsewhereIsNone();
    void tellsWhenTheMenuIsWanted();
    void isGoneWhenTheTrayLetsGo();
    void isGoneWithTheTray();
    void leavesNoWindowBehind();
    void readsTheGroundWhereTheTrayTellsNoColor();
    void itemComesBackToATrayThatLetsGoOfIt();
    void knowsWhosePanelItIsIn();
    void itemStandsWhereItsWindowIs();
    void itemStandsInTheTrayWhereNoHostComes();
    void itemReturnsToATrayThatIsRestarted();
    void aHostThatAppearsTakesTheItemOver();
    void aTrayThatAppearsTakesTheItemFromTheOwnBar();

private:
    /// The window that the docking of `m_window` has made, taken in.
    xcb_window_t dock(QSize size = { 22, 22 });
    [[nodiscard]] xcb_window_t requested();

    std::unique_ptr<FakeTray> m_tray;
    std::unique_ptr<DockedWindow> m_window;
};

void TrayDockingTest::init()
{
    qRegisterMetaType<StatusItem *>();
    m_tray = std::make_unique<FakeTray>(barGround);
}

void TrayDockingTest::cleanup()
{
    m_window.reset();
    m_tray.reset();
    TrayOwner owner;
    QTRY_VERIFY((owner.refresh(), owner.window() == 0));
}

xcb_window_t TrayDockingTest::requested()
{
    std::optional<xcb_window_t> icon;
    [&] { QTRY_VERIFY(icon || (icon = m_tray->request())); }();
    return icon.value_or(0);
}

xcb_window_t TrayDockingTest::dock(QSize size)
{
    m_window = std::make_unique<DockedWindow>(m_tray->window());
    const QSignalSpy wanted(m_window.get(), &DockedWindow::pictureWanted);
    const xcb_window_t icon = requested();
    m_tray->takeIn(icon, size);
    [&] { QTRY_VERIFY(!wanted.isEmpty()); }();
    return icon;
}

void TrayDockingTest::followsTheOwnerOfTheTrayAsItComesAndGoes()
{
    TrayOwner owner;
    const QSignalSpy changes(&owner, &TrayOwner::changed);
    QCOMPARE(owner.window(), 0U);
    m_tray->own();
    QTRY_COMPARE(owner.window(), m_tray->window());
    m_tray.reset();
    QTRY_COMPARE(owner.window(), 0U);
    QCOMPARE(changes.size(), 2);
}

void TrayDockingTest::followsTheTrayToAnotherOwner()
{
    m_tray->own();
    TrayOwner owner;
    QTRY_COMPARE(owner.window(), m_tray->window());
    FakeTray other;
    other.own();
    QTRY_COMPARE(owner.window(), other.window());
}

void TrayDockingTest::hearsOfNewColors()
{
    m_tray->announceText(Qt::red);
    m_tray->own();
    TrayOwner owner;
    const TrayColors colors(owner);
    owner.refresh();
    QTRY_COMPARE(colors.text(), std::optional(QColor(Qt::red)));
    m_tray->announceText(Qt::blue);
    QTRY_COMPARE(colors.text(), std::optional(QColor(Qt::blue)));
    m_tray.reset();
    QTRY_COMPARE(colors.text(), std::nullopt);
}

void TrayDockingTest::hearsWhetherThePanelStands()
{
    m_tray->announceOrientation(Qt::Vertical);
    m_tray->own();
    TrayOwner owner;
    QTRY_VERIFY(owner.isStanding());
    m_tray->announceOrientation(Qt::Horizontal);
    QTRY_VERIFY(!owner.isStanding());
}

void TrayDockingTest::asksTheTrayToTakeItIn()
{
    m_window = std::make_unique<DockedWindow>(m_tray->window());
    QVERIFY(requested());
    QVERIFY(!m_tray->request());
    QVERIFY(m_window->bounds().isNull());
}

void TrayDockingTest::wantsAPictureAtEverySizeThatTheTrayGivesIt()
{
    const xcb_window_t icon = dock({ 19, 19 });
    QCOMPARE(m_window->size(), QSize(19, 19));
    QCOMPARE(m_window->bounds(), QRect(2, 2, 19, 19));
    QCOMPARE(m_window->panel(), QRect(0, 0, 400, 30));
    const QSignalSpy wanted(m_window.get(), &DockedWindow::pictureWanted);
    m_tray->resize(icon, { 26, 26 });
    QTRY_COMPARE(m_window->size(), QSize(26, 26));
    QTRY_VERIFY(!wanted.isEmpty());
}

void TrayDockingTest::showsItsPictureOnTheTraysOwnGround()
{
    const xcb_window_t icon = dock();
    QCOMPARE(m_tray->depthOf(icon), 24);
    QCOMPARE(m_window->ground(), std::optional(barGround));
    QImage picture(22, 22, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(4, 5, Qt::white);
    m_window->show(picture);
    QTRY_COMPARE(m_tray->pixel(icon, { 4, 5 }), QColor(Qt::white));
    QCOMPARE(m_tray->pixel(icon, { 5, 4 }), barGround);
}

void TrayDockingTest::hasAnAlphaOfItsOwnWhereTheTrayBlends()
{
    m_tray->announceBlending();
    const xcb_window_t icon = dock();
    QCOMPARE(m_tray->depthOf(icon), 32);
    QCOMPARE(m_window->ground(), std::nullopt);
    QImage picture(22, 22, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(4, 5, Qt::white);
    m_window->show(picture);
    QTRY_COMPARE(m_tray->pixel(icon, { 4, 5 }), QColor(Qt::white));
    QCOMPARE(m_tray->pixel(icon, { 5, 4 }), QColor(0, 0, 0, 0));
}

void TrayDockingTest::tellsOfAClick()
{
    const xcb_window_t icon = dock();
    const QSignalSpy clicks(m_window.get(), &DockedWindow::clicked);
    m_tray->press(icon, leftButton);
    m_tray->release(icon, leftButton);
    QTRY_COMPARE(clicks.size(), 1);
}

void TrayDockingTest::aClickThatEndsElsewhereIsNone()
{
    const xcb_window_t icon = dock();
    const QSignalSpy clicks(m_window.get(), &DockedWindow::clicked);
    m_tray->press(icon, leftButton);
    m_tray->release(icon, leftButton, { 60, 3 });
    m_tray->press(icon, leftButton);
    m_tray->release(icon, leftButton);
    QTRY_COMPARE(clicks.size(), 1);
}

void TrayDockingTest::tellsWhenTheMenuIsWanted()
{
    const xcb_window_t icon = dock();
    const QSignalSpy menus(m_window.get(), &DockedWindow::menuRequested);
    const QSignalSpy clicks(m_window.get(), &DockedWindow::clicked);
    m_tray->press(icon, rightButton);
    m_tray->release(icon, rightButton);
    QTRY_COMPARE(menus.size(), 1);
    QCOMPARE(clicks.size(), 0);
}

void TrayDockingTest::isGoneWhenTheTrayLetsGo()
{
    const xcb_window_t icon = dock();
    const QSignalSpy gone(m_window.get(), &DockedWindow::undocked);
    m_tray->letGo(icon);
    QTRY_COMPARE(gone.size(), 1);
    QVERIFY(!m_tray->isThere(icon));
    QVERIFY(m_window->bounds().isNull());
}

void TrayDockingTest::isGoneWithTheTray()
{
    (void)dock();
    const QSignalSpy gone(m_window.get(), &DockedWindow::undocked);
    m_tray.reset();
    QTRY_COMPARE(gone.size(), 1);
    QVERIFY(m_window->bounds().isNull());
}

void TrayDockingTest::leavesNoWindowBehind()
{
    const xcb_window_t icon = dock();
    QVERIFY(m_tray->isThere(icon));
    m_window.reset();
    QTRY_VERIFY(!m_tray->isThere(icon));
}

void TrayDockingTest::readsTheGroundWhereTheTrayTellsNoColor()
{
    PanelColors colors;
    QCOMPARE(colors.contextForTray({ .ground = Qt::black }).text, QColor(Qt::white));
    QCOMPARE(colors.contextForTray({ .ground = Qt::white }).text, QColor(Qt::black));
    colors.setTrayText(Qt::green);
    QCOMPARE(colors.contextForTray({ .ground = Qt::white }).text, QColor(Qt::green));
    colors.setAppearance({ .forcedDark = true });
    QCOMPARE(colors.contextForTray({ .ground = Qt::white }).text, QColor(Qt::green));
}

void TrayDockingTest::itemComesBackToATrayThatLetsGoOfIt()
{
    PanelColors colors;
    TrayItem item(colors);
    item.addContentView(viewOf(dischargingAt(37, u"4:29"_s)));
    item.dockInto(m_tray->window());
    xcb_window_t icon = requested();
    for (int times = 0; times < 2; ++times) {
        m_tray->takeIn(icon, { 24, 24 });
        QTRY_COMPARE(item.place().item, QRect(2, 2, 24, 24));
        m_tray->letGo(icon);
        icon = requested();
    }
    m_tray->takeIn(icon, { 24, 24 });
    QTRY_COMPARE(item.place().item, QRect(2, 2, 24, 24));
}

void TrayDockingTest::knowsWhosePanelItIsIn()
{
    DockedWindow window(m_tray->window());
    QVERIFY(window.panelClass().isEmpty());
    m_tray->takeIn(requested(), { 24, 24 });
    QTRY_COMPARE(window.panelClass(), QByteArray("Bar"));
}

void TrayDockingTest::itemStandsWhereItsWindowIs()
{
    PanelColors colors;
    TrayItem item(colors);
    item.addContentView(viewOf(dischargingAt(37, u"4:29"_s)));
    QCOMPARE(item.place(), ItemPlace());
    item.dockInto(m_tray->window());
    m_tray->takeIn(requested(), { 24, 24 });
    QTRY_COMPARE(item.place(),
                 (ItemPlace { .item = { 2, 2, 24, 24 }, .panel = { 0, 0, 400, 30 } }));
    item.dockInto(0);
    QCOMPARE(item.place(), ItemPlace());
}

void TrayDockingTest::itemStandsInTheTrayWhereNoHostComes()
{
    m_tray->own();
    StatusAreaChooser chooser(QDBusConnection(u"nowhere"_s));
    QSignalSpy items(&chooser, &StatusAreaChooser::itemAvailable);
    chooser.start();
    QTRY_VERIFY(qobject_cast<TrayItem *>(chooser.item()));
    chooser.item()->addContentView(viewOf(dischargingAt(37, u"4:29"_s)));
    const xcb_window_t icon = requested();
    m_tray->takeIn(icon, { 22, 22 });
    const auto hasInk = [&] {
        for (int x = 0; x < 22; ++x) {
            if (m_tray->pixel(icon, { x, 6 }) != barGround)
                return true;
        }
        return false;
    };
    QTRY_VERIFY(hasInk());
}

void TrayDockingTest::itemReturnsToATrayThatIsRestarted()
{
    m_tray->own();
    StatusAreaChooser chooser(QDBusConnection(u"nowhere"_s));
    chooser.setHostTimeout(60s);
    const QSignalSpy items(&chooser, &StatusAreaChooser::itemAvailable);
    chooser.start();
    QTRY_VERIFY(qobject_cast<TrayItem *>(chooser.item()));
    for (int time = 0; time < 3; ++time) {
        m_tray->takeIn(requested(), { 22, 22 });
        QTRY_VERIFY(!chooser.item()->place().item.isEmpty());
        m_tray = std::make_unique<FakeTray>();
        QTRY_VERIFY(chooser.item()->place().item.isEmpty());
        m_tray->own();
    }
    QVERIFY(requested());
    QVERIFY(!m_tray->request());
    QCOMPARE(items.size(), 1);
}

void TrayDockingTest::aHostThatAppearsTakesTheItemOver()
{
    PrivateBus bus;
    FakeWatcher watcher(bus.connect());
    m_tray->own();
    StatusAreaChooser chooser(bus.connect());
    chooser.setHostTimeout(10ms);
    chooser.start();
    QTRY_VERIFY(qobject_cast<TrayItem *>(chooser.item()));
    const xcb_window_t icon = requested();
    m_tray->takeIn(icon, { 22, 22 });
    watcher.appear();
    QTRY_VERIFY(!qobject_cast<TrayItem *>(chooser.item()));
    QTRY_VERIFY(!m_tray->isThere(icon));
    watcher.disappear();
    QTRY_VERIFY(qobject_cast<TrayItem *>(chooser.item()));
    QVERIFY(requested());
}

void TrayDockingTest::aTrayThatAppearsTakesTheItemFromTheOwnBar()
{
    StatusAreaChooser chooser(QDBusConnection(u"nowhere"_s));
    chooser.setHostTimeout(10ms);
    chooser.start();
    QTRY_VERIFY(chooser.item());
    QVERIFY(!qobject_cast<TrayItem *>(chooser.item()));
    m_tray->own();
    QTRY_VERIFY(qobject_cast<TrayItem *>(chooser.item()));
    QVERIFY(requested());
    m_tray.reset();
    QTRY_VERIFY(!qobject_cast<TrayItem *>(chooser.item()));
}

int main(int argc, char **argv)
{
    const PrivateScreen screen;
    const QGuiApplication application(argc, argv);
    TrayDockingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_traydocking.moc"
