// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/gauge.h"
#include "tests/support/testmain.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <QtMath>

using namespace ferrin;

namespace {

/// The gauge alone on a transparent picture; green at the full end, red at the empty one.
QImage painted(qreal value, qreal scale)
{
    Gauge gauge;
    gauge.setSize(QSizeF(Gauge::frame, Gauge::frame));
    gauge.setColors({ Qt::red, Qt::green });
    gauge.setTrackColor(Qt::blue);
    gauge.setValue(value);
    QImage image(QSize(Gauge::frame, Gauge::frame) * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    gauge.paint(&painter);
    return image;
}

/// The colour of the ring's middle line so many degrees clockwise from the bottom.
QColor colorAt(const QImage &image, qreal degrees)
{
    const qreal scale = image.width() / Gauge::frame;
    const QPointF centre(Gauge::frame / 2, Gauge::frame / 2);
    const qreal angle = qDegreesToRadians(90 + degrees);
    const QPointF place = centre + 11.5 * QPointF(qCos(angle), qSin(angle));
    return image.pixelColor((place * scale - QPointF(0.5, 0.5)).toPoint());
}

bool isFilledAt(const QImage &image, qreal degrees)
{
    const QColor color = colorAt(image, degrees);
    return color.alpha() > 200 && color.blue() < 60;
}

bool isTrackAt(const QImage &image, qreal degrees)
{
    const QColor color = colorAt(image, degrees);
    return color.alpha() > 200 && color.blue() > 200;
}

/// Half of the round end: as many degrees as half a stroke takes of the ring, and a pixel.
constexpr qreal slack = 14;

} // namespace

class GaugeTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsClockwiseAsFarAsTheValue_data();
    void fillsClockwiseAsFarAsTheValue();
    void leavesItsGapAtTheBottomEmpty();
    void runsFromTheFirstColorToTheLast();
    void showsOnlyThePartOfTheGradientThatIsCovered();
    void takesValuesBeyondItsEndsForTheEnds();
    void fillsItsFrameToWholePixels_data();
    void fillsItsFrameToWholePixels();
    void hasTheSameFormOnBothSides();
};

void GaugeTest::fillsClockwiseAsFarAsTheValue_data()
{
    QTest::addColumn<qreal>("value");
    QTest::addColumn<qreal>("scale");
    for (const int percent : { 0, 1, 37, 50, 99, 100 }) {
        for (const int scale : { 1, 2, 3 }) {
            QTest::addRow("%d %% at %dx", percent, scale) << percent / 100.0 << qreal(scale);
        }
    }
}

void GaugeTest::fillsClockwiseAsFarAsTheValue()
{
    QFETCH(qreal, value);
    QFETCH(qreal, scale);
    const QImage image = painted(value, scale);
    const qreal end = 45 + 270 * value;
    int filled = 0;
    for (qreal degrees = 45; degrees <= 315; degrees += 1) {
        if (value > 0 && degrees < end - 1)
            QVERIFY2(isFilledAt(image, degrees), qPrintable(QString::number(degrees)));
        else if (value == 0 || degrees > end + slack)
            QVERIFY2(isTrackAt(image, degrees), qPrintable(QString::number(degrees)));
        filled += isFilledAt(image, degrees) ? 1 : 0;
    }
    QCOMPARE(filled > 0, value > 0);
}

void GaugeTest::leavesItsGapAtTheBottomEmpty()
{
    for (const qreal value : { 0.0, 1.0 }) {
        const QImage image = painted(value, 2);
        for (qreal degrees = -45 + slack; degrees <= 45 - slack; degrees += 1)
            QCOMPARE(colorAt(image, degrees).alpha(), 0);
    }
}

void GaugeTest::runsFromTheFirstColorToTheLast()
{
    const QImage image = painted(1, 2);
    QVERIFY(colorAt(image, 46).red() > 240);
    QVERIFY(colorAt(image, 46).green() < 15);
    QVERIFY(qAbs(colorAt(image, 180).red() - 127) < 15);
    QVERIFY(qAbs(colorAt(image, 180).green() - 127) < 15);
    QVERIFY(colorAt(image, 314).green() > 240);
    QVERIFY(colorAt(image, 314).red() < 15);
}

void GaugeTest::showsOnlyThePartOfTheGradientThatIsCovered()
{
    const QImage part = painted(0.37, 2);
    const QImage whole = painted(1, 2);
    for (qreal degrees = 46; degrees < 45 + 270 * 0.37 - 2; degrees += 4)
        QCOMPARE(colorAt(part, degrees), colorAt(whole, degrees));
}

void GaugeTest::takesValuesBeyondItsEndsForTheEnds()
{
    QCOMPARE(painted(-0.5, 1), painted(0, 1));
    QCOMPARE(painted(1.5, 1), painted(1, 1));
}

void GaugeTest::fillsItsFrameToWholePixels_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("1x") << 1;
    QTest::newRow("2x") << 2;
}

void GaugeTest::fillsItsFrameToWholePixels()
{
    QFETCH(int, scale);
    const QImage image = painted(1, scale);
    const int middle = 14 * scale;
    // The top, the left and the right of the ring: nothing before the edge, full ink right after.
    QCOMPARE(image.pixelColor(middle, scale - 1).alpha(), 0);
    QVERIFY(image.pixelColor(middle, scale).alpha() > 245);
    QCOMPARE(image.pixelColor(scale - 1, middle).alpha(), 0);
    QVERIFY(image.pixelColor(scale, middle).alpha() > 245);
    QCOMPARE(image.pixelColor(27 * scale, middle).alpha(), 0);
    QVERIFY(image.pixelColor(27 * scale - 1, middle).alpha() > 245);
    // The stroke is three wide, and ends as sharply.
    QVERIFY(image.pixelColor(middle, 4 * scale - 1).alpha() > 230);
    QVERIFY(image.pixelColor(middle, 4 * scale).alpha() < 25);
}

void GaugeTest::hasTheSameFormOnBothSides()
{
    for (const int scale : { 1, 2 }) {
        const QImage image = painted(1, scale).convertToFormat(QImage::Format_Alpha8);
        const QImage mirrored = image.mirrored(true, false);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                QVERIFY(qAbs(image.pixelColor(x, y).alpha() - mirrored.pixelColor(x, y).alpha())
                        < 24);
        }
    }
}

FERRIN_TEST(QGuiApplication, GaugeTest)
#include "test_gauge.moc"
