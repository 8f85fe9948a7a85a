// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemhostingview.h"
#include "platform/linux/ownbar/ownbar.h"
#include "platform/linux/ownwindows/popupmenu.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "tests/platform/support/contents.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <cstdlib>
#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const std::vector<MenuEntry> twoEntries { { u"one"_s, u"One"_s }, { u"two"_s, u"Two"_s } };

PopupMenu *openMenu()
{
    for (QWindow *const window : QGuiApplication::topLevelWindows()) {
        auto *menu = qobject_cast<PopupMenu *>(window);
        if (menu && menu->isVisible())
            return menu;
    }
    return nullptr;
}

} // namespace

class OwnBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void standsAtTheTopRightOfTheScreen();
    void standsAtTheTopLeftWhereOneReadsFromRightToLeft();
    void growsWithTheDesktopsTexts();
    void isBlackAndWhiteInHighContrast();
    void isAsWideAsItsLength();
    void keepsToTheRightHandEndOfAStrip();
    void keepsToItsContentWhenTheLengthIsAbsurd_data();
    void keepsToItsContentWhenTheLengthIsAbsurd();
    void tellsOfAClick();
    void ignoresAClickThatEndsElsewhere();
    void opensItsMenuAtTheOtherButton();
    void isAButtonToAScreenReader();

    void isDraggedToTheNearestEdge();
    void isBackWhereTheUserLeftIt();
    void standsAtTheTopRightWhereTheStoreHoldsNonsense();
    void aTrembleOfTheHandIsNoDragging();

private:
    void drag(QPoint by);
    /// Where the bar at a place of the screen shows anything but its ground, from its left.
    [[nodiscard]] QList<int> inkedColumns(const QRect &bar) const;

    MemoryDefaultsStore m_store;
    std::unique_ptr<PanelColors> m_colors;
    std::unique_ptr<OwnBar> m_bar;
    StatusItem *m_item = nullptr;
    OwnBarWindow *m_window = nullptr;
};

void OwnBarTest::init()
{
    m_bar.reset();
    m_colors = std::make_unique<PanelColors>();
    m_store.removeObject(u"ownBarPlace"_s);
    m_bar = std::make_unique<OwnBar>(*m_colors, &m_store);
    m_item = m_bar->item();
    m_window = &qobject_cast<OwnBarItem *>(m_item)->window();
    auto view = std::make_unique<ItemHostingView>();
    view->setContent(dischargingAt(37, u"4:29"_s));
    m_item->addContentView(std::move(view));
    m_item->setContextMenu(twoEntries);
    m_bar->show();
}

void OwnBarTest::standsAtTheTopRightOfTheScreen()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(m_item->place().item.topRight(), available.topRight());
    QCOMPARE(m_item->place().item, m_window->geometry());
    QCOMPARE(m_item->place().panel, m_window->geometry());
}

void OwnBarTest::standsAtTheTopLeftWhereOneReadsFromRightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    init();
    QCOMPARE(m_item->place().item.topLeft(),
             QGuiApplication::primaryScreen()->availableGeometry().topLeft());
}

void OwnBarTest::growsWithTheDesktopsTexts()
{
    m_item->setLength(100);
    const int usual = m_item->place().item.width();
    const auto inkedWidth = [this] {
        const QList<int> inked = inkedColumns(m_item->place().item);
        return inked.isEmpty() ? 0 : inked.last() - inked.first();
    };
    QTRY_VERIFY(inkedWidth() > 0);
    const int inkedBefore = inkedWidth();
    m_colors->setAppearance({ .textScale = 2 });
    QCOMPARE(m_item->place().item.width(), 2 * usual);
    QCOMPARE(m_item->place().item.height(), 2 * OwnBarWindow::contentHeight + 2);
    QCOMPARE(m_item->place().item.topRight(),
             QGuiApplication::primaryScreen()->availableGeometry().topRight());
    QTRY_VERIFY(std::abs(inkedWidth() - 2 * inkedBefore) <= 4);
}

void OwnBarTest::isBlackAndWhiteInHighContrast()
{
    for (const bool isDark : { false, true }) {
        m_colors->setAppearance({ .desktopDark = isDark, .isHighContrast = true });
        const QRect bar = m_item->place().item;
        const auto colorAt = [&](int x, int y) {
            return m_window->screen()
                ->grabWindow(0, bar.x(), bar.y(), bar.width(), bar.height())
                .toImage()
                .pixelColor(x, y);
        };
        QTRY_COMPARE(colorAt(1, 1), isDark ? Qt::black : Qt::white);
        QCOMPARE(colorAt(0, 0), isDark ? Qt::white : Qt::black);
    }
}

void OwnBarTest::isAsWideAsItsLength()
{
    const int before = m_item->place().item.width();
    m_item->setLength(before - 18 + 6);
    QCOMPARE(m_item->place().item.width(), before + 6);
    QCOMPARE(m_item->length(), before - 18 + 6.0);
    QCOMPARE(m_item->place().item.right(),
             QGuiApplication::primaryScreen()->availableGeometry().right());
}

void OwnBarTest::keepsToTheRightHandEndOfAStrip()
{
    // i3 gives a dock the whole width of the screen.
    const QSize ideal = m_window->size();
    m_window->setMaximumSize({ 780, ideal.height() });
    m_window->setGeometry(10, 0, 780, ideal.height());
    QTRY_COMPARE(m_window->width(), 780);
    const QRect strip = m_window->geometry();
    QCOMPARE(m_item->place().item,
             QRect(QPoint(strip.right() - ideal.width() + 1, strip.top()), ideal));
    QCOMPARE(m_item->place().panel, strip);
    QCOMPARE(m_window->accessibleRoot()->child(0)->rect(), m_item->place().item);

    const auto isInkedThereAlone = [&] {
        const QList<int> inked = inkedColumns(strip);
        return inked.size() > 10 && strip.left() + inked.first() >= m_item->place().item.left();
    };
    QTRY_VERIFY(isInkedThereAlone());
}

void OwnBarTest::keepsToItsContentWhenTheLengthIsAbsurd_data()
{
    QTest::addColumn<qreal>("length");
    QTest::newRow("huge") << 1e12;
    QTest::newRow("negative") << -5.0;
    QTest::newRow("not a number") << qQNaN();
    QTest::newRow("infinite") << qInf();
}

void OwnBarTest::keepsToItsContentWhenTheLengthIsAbsurd()
{
    QFETCH(qreal, length);
    const int before = m_item->place().item.width();
    m_item->setLength(length);
    QCOMPARE(m_item->place().item.width(), before);
}

void OwnBarTest::tellsOfAClick()
{
    const QSignalSpy clicks(m_item, &StatusItem::activated);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, { 5, 6 });
    QCOMPARE(clicks.size(), 1);
}

void OwnBarTest::ignoresAClickThatEndsElsewhere()
{
    const QSignalSpy clicks(m_item, &StatusItem::activated);
    QTest::mousePress(m_window, Qt::LeftButton, {}, { 5, 6 });
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 90),
                        QPointF(m_window->position()) + QPointF(5, 90), Qt::LeftButton, {}, {});
    QCoreApplication::sendEvent(m_window, &release);
    QCOMPARE(clicks.size(), 0);
}

void OwnBarTest::opensItsMenuAtTheOtherButton()
{
    QSignalSpy triggered(m_item, &StatusItem::menuEntryTriggered);
    const QSignalSpy clicks(m_item, &StatusItem::activated);
    QTest::mouseClick(m_window, Qt::RightButton, {}, { 5, 6 });
    PopupMenu *const menu = openMenu();
    QVERIFY(menu);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(triggered.takeFirst(), QVariantList { u"one"_s });
    QCOMPARE(clicks.size(), 0);
    QVERIFY(!openMenu());
}

void OwnBarTest::isAButtonToAScreenReader()
{
    QAccessibleInterface *const bar = m_window->accessibleRoot();
    QCOMPARE(bar->role(), QAccessible::ToolBar);
    QCOMPARE(bar->childCount(), 1);
    QAccessibleInterface *const button = bar->child(0);
    QCOMPARE(button->role(), QAccessible::Button);
    QCOMPARE(button->text(QAccessible::Name), u"37%, 4:29 to empty"_s);
    QCOMPARE(button->rect(), m_window->geometry());
    QCOMPARE(bar->indexOfChild(button), 0);
    QCOMPARE(button->parent(), bar);
    QCOMPARE(bar->child(1), nullptr);

    const QSignalSpy clicks(m_item, &StatusItem::activated);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicks.size(), 1);
}

QList<int> OwnBarTest::inkedColumns(const QRect &bar) const
{
    const QImage shown
        = m_window->screen()->grabWindow(0, bar.x(), bar.y(), bar.width(), bar.height()).toImage();
    constexpr int border = 1;
    QList<int> columns;
    for (int x = border; x < shown.width() - border; ++x) {
        for (int y = border; y < shown.height() - border; ++y) {
            if (shown.pixel(x, y) != shown.pixel(border, border)) {
                columns.append(x);
                break;
            }
        }
    }
    return columns;
}

void OwnBarTest::drag(QPoint by)
{
    const QPoint start(5, 6);
    QTest::mousePress(m_window, Qt::LeftButton, {}, start);
    QTest::mouseMove(m_window, start + by / 2);
    QTest::mouseMove(m_window, start + by - by / 2);
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, start);
}

void OwnBarTest::isDraggedToTheNearestEdge()
{
    const QSignalSpy clicks(m_item, &StatusItem::activated);
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    drag({ -200, available.height() - 60 });
    QCOMPARE(m_item->place().item.bottom(), available.bottom());
    QCOMPARE(m_item->place().item.right(), available.right() - 200);
    QCOMPARE(clicks.size(), 0);
    QVERIFY(m_store.string(u"ownBarPlace"_s)->startsWith(u"bottom 0."_s));
}

void OwnBarTest::isBackWhereTheUserLeftIt()
{
    drag({ -300, 40 });
    const QRect left = m_item->place().item;
    OwnBar next(*m_colors, &m_store);
    auto view = std::make_unique<ItemHostingView>();
    view->setContent(dischargingAt(37, u"4:29"_s));
    next.item()->addContentView(std::move(view));
    QVERIFY(left.top() == 0);
    QVERIFY(std::abs(next.item()->place().item.left() - left.left()) <= 1);
}

void OwnBarTest::standsAtTheTopRightWhereTheStoreHoldsNonsense()
{
    m_store.setObject(u"ownBarPlace"_s, u"middle of nowhere"_s);
    OwnBar bar(*m_colors, &m_store);
    QCOMPARE(bar.item()->place().item.topRight(),
             QGuiApplication::primaryScreen()->availableGeometry().topRight());
}

void OwnBarTest::aTrembleOfTheHandIsNoDragging()
{
    const QSignalSpy clicks(m_item, &StatusItem::activated);
    const QRect before = m_item->place().item;
    drag({ 2, 2 });
    QCOMPARE(m_item->place().item, before);
    QCOMPARE(clicks.size(), 1);
    QCOMPARE(m_store.string(u"ownBarPlace"_s), std::nullopt);
}

FERRIN_TEST(QGuiApplication, OwnBarTest)
#include "test_ownbar.moc"
