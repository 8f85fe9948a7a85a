// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownbar/barplace.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const QRect available(10, 30, 1000, 600);
constexpr QSize bar(100, 24);

} // namespace

class BarPlaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsAtItsEdge_data()
    {
        QTest::addColumn<BarPlace>("place");
        QTest::addColumn<QRect>("frame");
        QTest::newRow("top right") << BarPlace {} << QRect(910, 30, 100, 24);
        QTest::newRow("top left") << BarPlace { BarEdge::Top, 0 } << QRect(10, 30, 100, 24);
        QTest::newRow("middle of the bottom")
            << BarPlace { BarEdge::Bottom, 0.5 } << QRect(460, 606, 100, 24);
        QTest::newRow("low at the left")
            << BarPlace { BarEdge::Left, 1 } << QRect(10, 606, 100, 24);
        QTest::newRow("high at the right")
            << BarPlace { BarEdge::Right, 0 } << QRect(910, 30, 100, 24);
    }

    void standsAtItsEdge()
    {
        QFETCH(BarPlace, place);
        QFETCH(QRect, frame);
        QCOMPARE(frameAt(place, bar, available), frame);
    }

    void goesToTheNearestEdge_data()
    {
        QTest::addColumn<QPoint>("dropped");
        QTest::addColumn<BarEdge>("edge");
        QTest::newRow("top") << QPoint(400, 50) << BarEdge::Top;
        QTest::newRow("bottom") << QPoint(400, 550) << BarEdge::Bottom;
        QTest::newRow("left") << QPoint(20, 300) << BarEdge::Left;
        QTest::newRow("right") << QPoint(880, 300) << BarEdge::Right;
        QTest::newRow("beyond the top") << QPoint(400, -50) << BarEdge::Top;
    }

    void goesToTheNearestEdge()
    {
        QFETCH(QPoint, dropped);
        QFETCH(BarEdge, edge);
        const BarPlace place = nearestPlace(QRect(dropped, bar), available);
        QCOMPARE(place.edge, edge);
        const QRect frame = frameAt(place, bar, available);
        QVERIFY(available.contains(frame));
        QVERIFY(frame.left() == dropped.x() || frame.top() == dropped.y());
    }

    void aBarLargerThanItsRoomBeginsWithIt()
    {
        QCOMPARE(frameAt({}, { 2000, 24 }, available).topLeft(), QPoint(10, 30));
        QCOMPARE(nearestPlace({ 0, 30, 2000, 24 }, available).along, 0.0);
    }

    void isTheSameAfterItWasStored_data()
    {
        QTest::addColumn<BarPlace>("place");
        QTest::newRow("the primary screen") << BarPlace { BarEdge::Bottom, 0.25 };
        QTest::newRow("another") << BarPlace { BarEdge::Left, 1, u"HDMI-1"_s };
        QTest::newRow("one with a long name") << BarPlace { BarEdge::Right, 0, u"A B c"_s };
    }

    void isTheSameAfterItWasStored()
    {
        QFETCH(BarPlace, place);
        QCOMPARE(barPlaceIn(toText(place)), std::optional(place));
    }

    void nonsenseIsNoPlace()
    {
        for (const QString &text : { u""_s, u"top"_s, u"top x"_s, u"top 2"_s, u"top nan"_s,
                                     u"middle 0.5"_s, u"0.5 top"_s, u"top -0.1"_s })
            QCOMPARE(barPlaceIn(text), std::nullopt);
    }
};

FERRIN_TEST(void, BarPlaceTest)
#include "test_barplace.moc"
