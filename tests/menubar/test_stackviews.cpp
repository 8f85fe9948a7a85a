// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "menubar/fillview.h"
#include "menubar/stackviews.h"
#include "tests/support/testmain.h"

#include <QGuiApplication>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;

namespace {

const Block small { { 4, 4 } };
const Block large { { 10, 8 } };

} // namespace

class StackViewsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyViewHasNoSizeAndPaintsNothing()
    {
        QCOMPARE(AnyView().idealSize(blackOnClear), QSizeF(0, 0));
        QVERIFY(inkedRect(painted(AnyView(), { 5, 5 })).isNull());
    }

    void viewsOfTheSameValueAreEqual()
    {
        QVERIFY(AnyView(small) == AnyView(Block { { 4, 4 } }));
        QVERIFY(AnyView(small) != AnyView(large));
        QVERIFY(AnyView(small) != AnyView(SpacerView {}));
        QVERIFY(AnyView(small) != AnyView());
        QVERIFY(AnyView(RowView { .spacing = 1, .children = { small, large } })
                == AnyView(RowView { .spacing = 1, .children = { small, large } }));
        QVERIFY(AnyView(RowView { .spacing = 1, .children = { small, large } })
                != AnyView(RowView { .spacing = 1, .children = { large, small } }));
    }

    void aRowIsAsWideAsItsViewsAndSpacings()
    {
        const RowView row { .spacing = 3, .children = { small, large, small } };
        QCOMPARE(row.idealSize(blackOnClear), QSizeF(24, 8));
    }

    void negativeSpacingMakesNeighboursOverlap()
    {
        const RowView row { .spacing = -2, .children = { small, large } };
        QCOMPARE(row.idealSize(blackOnClear), QSizeF(12, 8));
    }

    void aRowCentresItsViewsVertically()
    {
        const QImage image = painted(RowView { .spacing = 1, .children = { small, large } });
        QCOMPARE(inkOfColumn(image, 0), 4.0);
        QCOMPARE(opacityAt(image, 0, 1), 0.0);
        QCOMPARE(opacityAt(image, 0, 2), 1.0);
        QCOMPARE(inkOfColumn(image, 4), 0.0);
        QCOMPARE(inkOfColumn(image, 5), 8.0);
    }

    void aSpacerTakesWhatTheBoundsLeave()
    {
        const RowView row { .children = { small, SpacerView {}, small } };
        QCOMPARE(row.idealSize(blackOnClear), QSizeF(16, 4));
        const QImage image = painted(row, { 20, 4 });
        QCOMPARE(inkedRect(image), QRect(0, 0, 20, 4));
        QCOMPARE(inkOfRow(image, 0), 8.0);
    }

    void aSpacerGivesWayWhereThereIsNoRoom()
    {
        const QImage image
            = painted(RowView { .children = { small, SpacerView {}, small } }, { 9, 4 });
        QCOMPARE(inkedRect(image), QRect(0, 0, 9, 4));
    }

    void aRowWithoutSpacersStandsInTheMiddle()
    {
        const QImage image = painted(RowView { .children = { small } }, { 10, 10 });
        QCOMPARE(inkedRect(image), QRect(3, 3, 4, 4));
    }

    void aRowIsMirroredUnlessItKeepsItsOrder()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        RowView row { .spacing = 1, .children = { small, SpacerView {}, large } };
        const QImage mirrored = painted(row, { 40, 8 });
        row.keepsOrder = true;
        const QImage kept = painted(row, { 40, 8 });
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(inkOfColumn(mirrored, 0), 8.0);
        QCOMPARE(inkOfColumn(mirrored, 39), 4.0);
        QCOMPARE(mirrored, kept.mirrored(true, false));
    }

    void aColumnCentresItsViewsHorizontally()
    {
        const ColumnView column { .spacing = 2, .children = { small, large } };
        QCOMPARE(column.idealSize(blackOnClear), QSizeF(10, 14));
        const QImage image = painted(column);
        QCOMPARE(inkOfRow(image, 0), 4.0);
        QCOMPARE(opacityAt(image, 3, 0), 1.0);
        QCOMPARE(opacityAt(image, 7, 0), 0.0);
        QCOMPARE(inkOfRow(image, 5), 0.0);
        QCOMPARE(inkOfRow(image, 6), 10.0);
    }

    void theLayersOfAnOverlayMeetAsAligned_data()
    {
        QTest::addColumn<OverlayAlignment>("alignment");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("centre") << OverlayAlignment::Centre << QPoint(3, 2);
        QTest::newRow("bottom") << OverlayAlignment::Bottom << QPoint(3, 4);
        QTest::newRow("leading") << OverlayAlignment::Leading << QPoint(0, 2);
    }

    void theLayersOfAnOverlayMeetAsAligned()
    {
        QFETCH(OverlayAlignment, alignment);
        QFETCH(QPoint, place);
        const OverlayView overlay { .alignment = alignment,
                                    .layers = { SpacerView { 10 }, OffsetView { large, { 100, 0 } },
                                                small } };
        QCOMPARE(overlay.idealSize(blackOnClear), QSizeF(10, 8));
        QCOMPARE(inkedRect(painted(overlay)), QRect(place, QSize(4, 4)));
    }

    void anOverlayStandsOnDevicePixels_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::newRow("1x") << 1.0;
        QTest::newRow("1.5x") << 1.5;
        QTest::newRow("2x") << 2.0;
        QTest::newRow("3x") << 3.0;
    }

    void anOverlayStandsOnDevicePixels()
    {
        QFETCH(qreal, scale);
        const OverlayView overlay { .layers = { Block { { 4, 4 } } } };
        const QImage image = painted(overlay, { 9, 11 }, scale);
        const QRect ink = inkedRect(image);
        QCOMPARE(ink.size(), (QSizeF(4, 4) * scale).toSize());
        QCOMPARE(inkOfRow(image, ink.top()), double(ink.width()));
    }

    void anOffsetMovesThePictureAndNotThePlace()
    {
        const OffsetView view { .content = small, .offset = { 2, -1 } };
        QCOMPARE(view.idealSize(blackOnClear), QSizeF(4, 4));
        const QImage image = painted(RowView { .spacing = 4, .children = { view, small } });
        QCOMPARE(opacityAt(image, 1, 0), 0.0);
        QCOMPARE(opacityAt(image, 2, 0), 1.0);
        QCOMPARE(opacityAt(image, 2, 3), 0.0);
        QCOMPARE(opacityAt(image, 8, 3), 1.0);
    }

    void paddingMayBeNegative()
    {
        const PaddedView view { .content = large, .margins = { -3, 0, -3, 2 } };
        QCOMPARE(view.idealSize(blackOnClear), QSizeF(4, 10));
    }

    void aFittedViewFillsItsBounds()
    {
        const FittedView view { .content = large, .size = { 30, 30 } };
        QCOMPARE(view.idealSize(blackOnClear), QSizeF(30, 30));
        QCOMPARE(inkedRect(painted(view)), QRect(0, 3, 30, 24));
    }

    void aCutLeavesAHoleThatShowsWhatLiesBelow()
    {
        QImage image(10, 8, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::green);
        QPainter painter(&image);
        CutOutView { .content = large, .mask = small }.paint(painter, QRectF(0, 0, 10, 8),
                                                             blackOnClear);
        painter.end();
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::black));
        QCOMPARE(image.pixelColor(3, 2), QColor(Qt::green));
        QCOMPARE(image.pixelColor(6, 5), QColor(Qt::green));
        QCOMPARE(image.pixelColor(7, 5), QColor(Qt::black));
    }

    void aFillHasSmoothCorners()
    {
        const QImage image = painted(FillView { .size = { 6, 12 } }, 8);
        QCOMPARE(opacityAt(image, 0, 0), 0.0);
        QCOMPARE(opacityAt(image, 24, 0), 1.0);
        QCOMPARE(opacityAt(image, 0, 48), 1.0);
        // As near to the corner as a circle of 1.2: the diagonal enters it at 0.35 of a pixel.
        QVERIFY(opacityAt(image, 2, 2) < 0.1);
        QCOMPARE(opacityAt(image, 3, 3), 1.0);
    }

    void aFillOfNoLengthPaintsNothing()
    {
        QVERIFY(inkedRect(painted(FillView { .size = { 6, 0 } }, { 6, 12 })).isNull());
    }
};

FERRIN_TEST(QGuiApplication, StackViewsTest)
#include "test_stackviews.moc"
