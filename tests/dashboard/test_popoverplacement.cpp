// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/popoverplacement.h"

#include <QTest>

#include <cstdlib>

using namespace ferrin;

namespace {
constexpr QRect screen(0, 30, 800, 570);
constexpr QSize popover(420, 300);
} // namespace

class TestPopoverPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsCentredBelowAnItemAtTheTop();
    void standsAboveAnItemAtTheBottom();
    void isMovedInsideTheScreenAtItsCorners_data();
    void isMovedInsideTheScreenAtItsCorners();
    void showsItsTopLeftCornerWhenItIsLargerThanTheScreen();
};

void TestPopoverPlacement::standsCentredBelowAnItemAtTheTop()
{
    const QRect item(400, 0, 40, 30);
    const QRect placed(popoverPosition(item, popover, screen), popover);
    QVERIFY(std::abs(placed.center().x() - item.center().x()) <= 1);
    QVERIFY(placed.top() > item.bottom());
}

void TestPopoverPlacement::standsAboveAnItemAtTheBottom()
{
    const QRect item(400, 600, 40, 30);
    const QRect placed(popoverPosition(item, popover, screen), popover);
    QVERIFY(placed.bottom() < item.top());
}

void TestPopoverPlacement::isMovedInsideTheScreenAtItsCorners_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("top right") << QPoint(799, 0);
    QTest::newRow("bottom left") << QPoint(0, 599);
    QTest::newRow("bottom right") << QPoint(799, 599);
    QTest::newRow("middle") << QPoint(400, 300);
}

void TestPopoverPlacement::isMovedInsideTheScreenAtItsCorners()
{
    QFETCH(QPoint, pointer);
    const QPoint position = popoverPosition(QRect(pointer, QSize(1, 1)), popover, screen);
    QVERIFY(screen.contains(QRect(position, popover)));
}

void TestPopoverPlacement::showsItsTopLeftCornerWhenItIsLargerThanTheScreen()
{
    QCOMPARE(popoverPosition(QRect(400, 0, 40, 30), QSize(2000, 2000), screen), screen.topLeft());
}

QTEST_APPLESS_MAIN(TestPopoverPlacement)
#include "test_popoverplacement.moc"
