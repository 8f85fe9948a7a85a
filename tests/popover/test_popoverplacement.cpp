// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverplacement.h"
#include "tests/support/testmain.h"

#include <QGuiApplication>
#include <QTest>

#include <cstdlib>

using namespace ferrin;

namespace {

constexpr QRect screen(0, 0, 800, 600);
constexpr QSize popover(420, 300);

constexpr QRect topPanel(0, 0, 800, 30);
constexpr QRect bottomPanel(0, 570, 800, 30);
constexpr QRect leftPanel(0, 0, 40, 600);
constexpr QRect rightPanel(760, 0, 40, 600);

PopoverSpot at(QPoint click, const QRect &panel = {}, const ScreenArea &area = { screen, screen })
{
    return spotAtItem({ .item { click, QSize(1, 1) }, .panel = panel }, popover, area);
}

} // namespace

class PopoverPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsOnTheInnerSideOfThePanel_data();
    void standsOnTheInnerSideOfThePanel();
    void neverCoversThePanelNorLeavesTheScreen_data();
    void neverCoversThePanelNorLeavesTheScreen();
    void isCentredOnTheItem();
    void keepsAwayFromTheEdgesOfTheScreen();
    void knowsAShortPanelByItsShape_data();
    void knowsAShortPanelByItsShape();
    void standsAtThePanelOfTheSecondScreen();
    void keepsClearOfOtherPanels();
    void takesTheNearestEdgeForThePanel_data();
    void takesTheNearestEdgeForThePanel();
    void ignoresAPanelOfAnotherScreen();
    void standsInTheCornerOfTheStatusAreaWithoutAPlace_data();
    void standsInTheCornerOfTheStatusAreaWithoutAPlace();
    void standsInTheOtherCornerWhereOneReadsFromRightToLeft();
    void showsItsTopLeftCornerWhenItIsLargerThanTheScreen();

    void explainsAPartFromWhereThereIsRoom_data();
    void explainsAPartFromWhereThereIsRoom();
    void pointsAtThePart();
    void keepsTheArrowOffTheCorners();
    void liesOnTheScreenWhereNoSideHasRoom();
};

void PopoverPlacementTest::standsOnTheInnerSideOfThePanel_data()
{
    QTest::addColumn<QRect>("panel");
    QTest::addColumn<QPoint>("click");
    QTest::addColumn<PopoverSide>("side");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("top") << topPanel << QPoint(400, 15) << PopoverSide::Below << QPoint(190, 36);
    QTest::newRow("bottom") << bottomPanel << QPoint(400, 585) << PopoverSide::Above
                            << QPoint(190, 570 - 6 - 300);
    QTest::newRow("left") << leftPanel << QPoint(20, 300) << PopoverSide::Right << QPoint(46, 150);
    QTest::newRow("right") << rightPanel << QPoint(780, 300) << PopoverSide::Left
                           << QPoint(760 - 6 - 420, 150);
}

void PopoverPlacementTest::standsOnTheInnerSideOfThePanel()
{
    QFETCH(QRect, panel);
    QFETCH(QPoint, click);
    QFETCH(PopoverSide, side);
    QFETCH(QPoint, corner);
    const PopoverSpot spot = at(click, panel);
    QCOMPARE(spot.side, side);
    const QPoint off = spot.frame.topLeft() - corner;
    QVERIFY2(off.manhattanLength() <= 1,
             qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
}

void PopoverPlacementTest::neverCoversThePanelNorLeavesTheScreen_data()
{
    QTest::addColumn<QRect>("panel");
    for (const auto &[name, panel] :
         { std::pair("top", topPanel), std::pair("bottom", bottomPanel),
           std::pair("left", leftPanel), std::pair("right", rightPanel) })
        QTest::newRow(name) << panel;
}

void PopoverPlacementTest::neverCoversThePanelNorLeavesTheScreen()
{
    QFETCH(QRect, panel);
    for (const QPoint click : { panel.topLeft(), panel.topRight(), panel.bottomLeft(),
                                panel.bottomRight(), panel.center() }) {
        const PopoverSpot spot = at(click, panel);
        QCOMPARE(spot.frame.size(), popover);
        QVERIFY(screen.contains(spot.bounds));
        QVERIFY(spot.bounds.contains(spot.frame));
        QVERIFY(!spot.bounds.intersects(panel));
    }
}

void PopoverPlacementTest::isCentredOnTheItem()
{
    const PopoverSpot spot
        = spotAtItem({ .item { 400, 0, 70, 30 }, .panel = topPanel }, popover, { screen, screen });
    QVERIFY(std::abs(spot.frame.center().x() - 435) <= 1);
    QVERIFY(std::abs(spot.arrow - popover.width() / 2) <= 1);
}

void PopoverPlacementTest::keepsAwayFromTheEdgesOfTheScreen()
{
    QCOMPARE(at({ 799, 15 }, topPanel).frame.right(), 799 - popoverGap);
    QCOMPARE(at({ 0, 15 }, topPanel).frame.left(), popoverGap);
}

void PopoverPlacementTest::knowsAShortPanelByItsShape_data()
{
    QTest::addColumn<QRect>("panel");
    QTest::addColumn<PopoverSide>("side");
    QTest::newRow("at the top, right") << QRect(740, 0, 60, 30) << PopoverSide::Below;
    QTest::newRow("at the bottom, right") << QRect(740, 570, 60, 30) << PopoverSide::Above;
    QTest::newRow("at the right, top") << QRect(770, 0, 30, 60) << PopoverSide::Left;
    QTest::newRow("at the left, bottom") << QRect(0, 540, 30, 60) << PopoverSide::Right;
    QTest::newRow("a square at the top") << QRect(770, 0, 30, 30) << PopoverSide::Below;
    QTest::newRow("off the edge") << QRect(200, 8, 400, 40) << PopoverSide::Below;
}

void PopoverPlacementTest::knowsAShortPanelByItsShape()
{
    QFETCH(QRect, panel);
    QFETCH(PopoverSide, side);
    const PopoverSpot spot = at(panel.center(), panel);
    QCOMPARE(spot.side, side);
    QVERIFY(!spot.bounds.intersects(panel));
}

void PopoverPlacementTest::standsAtThePanelOfTheSecondScreen()
{
    // The desktop tells no part of either screen as taken.
    const QRect second(800, 0, 1000, 600);
    const PopoverSpot spot
        = at({ 1790, 590 }, { 800, 570, 1000, 30 }, { .whole = second, .available = second });
    QCOMPARE(spot.side, PopoverSide::Above);
    QCOMPARE(spot.frame.bottomRight(), QPoint(1799 - popoverGap, 569 - popoverGap));
}

void PopoverPlacementTest::keepsClearOfOtherPanels()
{
    const QRect available(0, 30, 760, 570);
    const PopoverSpot spot = at({ 790, 15 }, topPanel, { .whole = screen, .available = available });
    QCOMPARE(spot.frame.topRight(), QPoint(759 - popoverGap, 30 + popoverGap));
    QCOMPARE(spot.bounds, available);
}

void PopoverPlacementTest::takesTheNearestEdgeForThePanel_data()
{
    QTest::addColumn<QPoint>("click");
    QTest::addColumn<PopoverSide>("side");
    QTest::newRow("top") << QPoint(600, 10) << PopoverSide::Below;
    QTest::newRow("the very corner") << QPoint(0, 0) << PopoverSide::Below;
    QTest::newRow("bottom") << QPoint(600, 590) << PopoverSide::Above;
    QTest::newRow("left") << QPoint(10, 300) << PopoverSide::Right;
    QTest::newRow("right") << QPoint(790, 300) << PopoverSide::Left;
}

void PopoverPlacementTest::takesTheNearestEdgeForThePanel()
{
    QFETCH(QPoint, click);
    QFETCH(PopoverSide, side);
    const PopoverSpot spot = at(click);
    QCOMPARE(spot.side, side);
    QVERIFY(screen.contains(spot.frame));
    QVERIFY(!spot.frame.contains(click));
}

void PopoverPlacementTest::ignoresAPanelOfAnotherScreen()
{
    const PopoverSpot spot = at({ 600, 10 }, { 2000, 0, 30, 600 });
    QCOMPARE(spot.side, PopoverSide::Below);
    QVERIFY(screen.contains(spot.frame));
}

void PopoverPlacementTest::standsInTheCornerOfTheStatusAreaWithoutAPlace_data()
{
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QRect>("frame");
    const QSize size = popover;
    QTest::newRow("no panel known") << screen << QRect(QPoint(374, 6), size);
    QTest::newRow("panel at the top") << QRect(0, 30, 800, 570) << QRect(QPoint(374, 36), size);
    QTest::newRow("panel at the bottom") << QRect(0, 0, 800, 570) << QRect(QPoint(374, 264), size);
    QTest::newRow("panel at the right") << QRect(0, 0, 760, 600) << QRect(QPoint(334, 6), size);
}

void PopoverPlacementTest::standsInTheCornerOfTheStatusAreaWithoutAPlace()
{
    QFETCH(QRect, available);
    QFETCH(QRect, frame);
    QCOMPARE(spotAtItem({}, popover, { screen, available }).frame, frame);
}

void PopoverPlacementTest::standsInTheOtherCornerWhereOneReadsFromRightToLeft()
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QRect frame = spotAtItem({}, popover, { screen, { 40, 30, 760, 570 } }).frame;
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(frame, QRect(QPoint(46, 36), popover));
}

void PopoverPlacementTest::showsItsTopLeftCornerWhenItIsLargerThanTheScreen()
{
    const PopoverSpot spot = spotAtItem({ .item { 400, 0, 40, 30 }, .panel = topPanel },
                                        { 2000, 2000 }, { screen, { 0, 30, 800, 570 } });
    QCOMPARE(spot.frame.topLeft(), QPoint(0, 30));
}

void PopoverPlacementTest::explainsAPartFromWhereThereIsRoom_data()
{
    QTest::addColumn<QRect>("part");
    QTest::addColumn<PopoverSide>("side");
    QTest::newRow("below") << QRect(300, 50, 100, 100) << PopoverSide::Below;
    QTest::newRow("above") << QRect(300, 450, 100, 100) << PopoverSide::Above;
    QTest::newRow("right") << QRect(10, 250, 100, 100) << PopoverSide::Right;
    QTest::newRow("left") << QRect(690, 250, 100, 100) << PopoverSide::Left;
}

void PopoverPlacementTest::explainsAPartFromWhereThereIsRoom()
{
    QFETCH(QRect, part);
    QFETCH(PopoverSide, side);
    const PopoverSpot spot = spotAtPart(part, { 300, 260 }, screen);
    QCOMPARE(spot.side, side);
    QVERIFY(screen.contains(spot.frame));
    QVERIFY(!spot.frame.intersects(part));
}

void PopoverPlacementTest::pointsAtThePart()
{
    const QRect part(620, 50, 100, 100);
    const PopoverSpot below = spotAtPart(part, { 300, 260 }, screen);
    QCOMPARE(below.frame.right(), 799 - explanationGap);
    QCOMPARE(below.frame.left() + below.arrow, 670);
    const PopoverSpot right = spotAtPart({ 10, 250, 100, 100 }, { 300, 260 }, screen);
    QCOMPARE(right.frame.top() + right.arrow, 300);
}

void PopoverPlacementTest::keepsTheArrowOffTheCorners()
{
    const PopoverSpot spot = spotAtPart({ 790, 50, 10, 100 }, { 300, 260 }, screen);
    QVERIFY(spot.arrow <= 300 - 20);
    QVERIFY(spotAtPart({ 0, 50, 10, 100 }, { 300, 260 }, screen).arrow >= 20);
}

void PopoverPlacementTest::liesOnTheScreenWhereNoSideHasRoom()
{
    const PopoverSpot spot = spotAtPart({ 300, 200, 200, 200 }, { 400, 350 }, screen);
    QVERIFY(screen.contains(spot.frame));
}

FERRIN_TEST(void, PopoverPlacementTest)
#include "test_popoverplacement.moc"
