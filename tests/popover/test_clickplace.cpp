// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/clickplace.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;

namespace {

constexpr ScaledScreen atOneX { .geometry { 0, 0, 1920, 1080 }, .ratio = 1 };
constexpr ScaledScreen atTwoX { .geometry { 0, 0, 960, 540 }, .ratio = 2 };
// To the right of another screen of 1920 pixels.
constexpr ScaledScreen second { .geometry { 1920, 0, 960, 540 }, .ratio = 2 };

} // namespace

class ClickPlaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversTheDevicePixels_data();
    void coversTheDevicePixels();
    void findsThePanelOnAnyEdge_data();
    void findsThePanelOnAnyEdge();
    void cutsThePanelAtItsScreen();
    void keepsTheSpotWithoutAPanel_data();
    void keepsTheSpotWithoutAPanel();
    void takesAClickOnAPanelForOneOnTheEdge_data();
    void takesAClickOnAPanelForOneOnTheEdge();
};

void ClickPlaceTest::coversTheDevicePixels_data()
{
    QTest::addColumn<QRect>("device");
    QTest::addColumn<int>("screen");
    QTest::addColumn<QRect>("logical");
    QTest::newRow("1x") << QRect(0, 0, 1920, 31) << 0 << QRect(0, 0, 1920, 31);
    QTest::newRow("2x") << QRect(0, 0, 1920, 60) << 1 << QRect(0, 0, 960, 30);
    QTest::newRow("2x, odd height") << QRect(0, 0, 1920, 61) << 1 << QRect(0, 0, 960, 31);
    QTest::newRow("2x, odd corner") << QRect(0, 1049, 1920, 31) << 1 << QRect(0, 524, 960, 16);
    QTest::newRow("2x, second screen")
        << QRect(1920, 1020, 1920, 60) << 2 << QRect(1920, 510, 960, 30);
}

void ClickPlaceTest::coversTheDevicePixels()
{
    QFETCH(QRect, device);
    QFETCH(int, screen);
    QFETCH(QRect, logical);
    const std::array screens { atOneX, atTwoX, second };
    QCOMPARE(logicalRect(device, screens.at(size_t(screen))), logical);
}

void ClickPlaceTest::findsThePanelOnAnyEdge_data()
{
    QTest::addColumn<QRect>("dock");
    QTest::addColumn<QPoint>("pointer");
    QTest::newRow("top") << QRect(0, 0, 1920, 30) << QPoint(1800, 15);
    QTest::newRow("bottom") << QRect(0, 1050, 1920, 30) << QPoint(1800, 1070);
    QTest::newRow("left") << QRect(0, 0, 40, 1080) << QPoint(20, 900);
    QTest::newRow("right") << QRect(1880, 0, 40, 1080) << QPoint(1919, 1079);
    QTest::newRow("at the corner of the screen") << QRect(0, 0, 1920, 30) << QPoint(0, 0);
}

void ClickPlaceTest::findsThePanelOnAnyEdge()
{
    QFETCH(QRect, dock);
    QFETCH(QPoint, pointer);
    const ItemPlace expected { .item { pointer, QSize(1, 1) }, .panel = dock };
    QCOMPARE(placeOfClick(pointer, dock, atOneX), expected);
}

void ClickPlaceTest::cutsThePanelAtItsScreen()
{
    const QRect acrossBoth(0, 0, 1920 + 1920, 60);
    QCOMPARE(placeOfClick({ 2500, 10 }, acrossBoth, second).panel, QRect(1920, 0, 960, 30));
}

void ClickPlaceTest::keepsTheSpotWithoutAPanel_data()
{
    QTest::addColumn<QRect>("dock");
    QTest::newRow("none") << QRect();
    QTest::newRow("too thick for a panel") << QRect(0, 0, 1920, 400);
    QTest::newRow("elsewhere by now") << QRect(0, 1050, 1920, 30);
}

void ClickPlaceTest::keepsTheSpotWithoutAPanel()
{
    QFETCH(QRect, dock);
    const ItemPlace expected { .item { 1800, 15, 1, 1 } };
    QCOMPARE(placeOfClick({ 1800, 15 }, dock, atOneX), expected);
}

void ClickPlaceTest::takesAClickOnAPanelForOneOnTheEdge_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("spot");
    QTest::newRow("top") << QPoint(2800, 15) << QPoint(2800, 0);
    QTest::newRow("bottom") << QPoint(2000, 530) << QPoint(2000, 539);
    QTest::newRow("left") << QPoint(1930, 300) << QPoint(1920, 300);
    QTest::newRow("right") << QPoint(2860, 300) << QPoint(2879, 300);
    QTest::newRow("in the middle of the screen") << QPoint(2400, 270) << QPoint(2400, 270);
}

void ClickPlaceTest::takesAClickOnAPanelForOneOnTheEdge()
{
    QFETCH(QPoint, pointer);
    QFETCH(QPoint, spot);
    QCOMPARE(placeAtEdge(pointer, second.geometry),
             (ItemPlace { .item = QRect(spot, QSize(1, 1)) }));
}

FERRIN_TEST(void, ClickPlaceTest)
#include "test_clickplace.moc"
