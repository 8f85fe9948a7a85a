// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/glyphs.h"
#include "quick/batteryglyph.h"
#include "tests/menubar/ink.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;

namespace {

QImage paintedGlyph(qreal percent, qreal scale)
{
    BatteryGlyph glyph;
    glyph.setPercent(percent);
    glyph.setColor(Qt::blue);
    glyph.setSize(QSizeF(glyph.implicitWidth(), glyph.implicitHeight()));
    QImage image((glyph.size() * scale).toSize() + QSize(1, 1),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    glyph.paint(&painter);
    return image;
}

double inkOf(const QImage &image)
{
    double ink = 0;
    for (int y = 0; y < image.height(); ++y)
        ink += inkOfRow(image, y);
    return ink;
}

} // namespace

class BatteryGlyphTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAFifthLargerThanInTheMenuBar();
    void isPaintedInItsColorAlone();
    void fillsWithTheCharge();
    void staysInsideItsFrame();
};

void BatteryGlyphTest::isAFifthLargerThanInTheMenuBar()
{
    const BatteryGlyph glyph;
    const QSizeF small = AnyView(HorzBattery2View {}).idealSize({});
    QCOMPARE(QSizeF(glyph.implicitWidth(), glyph.implicitHeight()), small * 1.2);
}

void BatteryGlyphTest::isPaintedInItsColorAlone()
{
    const QImage image = paintedGlyph(50, 2);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            QCOMPARE(color.red(), 0);
            QCOMPARE(color.green(), 0);
        }
    }
}

void BatteryGlyphTest::fillsWithTheCharge()
{
    const double none = inkOf(paintedGlyph(0, 2));
    const double half = inkOf(paintedGlyph(50, 2));
    const double all = inkOf(paintedGlyph(100, 2));
    QVERIFY(none > 0);
    QVERIFY(near(half - none, all - half, 0.15 * (all - none)));
    // Of the whole: 16 by 7 logical pixels, a fifth larger, at 2x.
    QVERIFY(near(all - none, 16 * 7 * 1.2 * 1.2 * 4 * 0.875, 30));
}

void BatteryGlyphTest::staysInsideItsFrame()
{
    const BatteryGlyph glyph;
    for (const qreal scale : { 1.0, 2.0 }) {
        const QImage image = paintedGlyph(100, scale);
        const QRectF frame(0, 0, glyph.implicitWidth() * scale, glyph.implicitHeight() * scale);
        QVERIFY(frame.toAlignedRect().adjusted(0, 0, 1, 1).contains(inkedRect(image)));
        QVERIFY(inkedRect(image).width() > 0.8 * frame.width());
    }
}

FERRIN_TEST(QGuiApplication, BatteryGlyphTest)
#include "test_batteryglyph.moc"
