// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "menubar/fillview.h"
#include "menubar/glyphs.h"
#include "menubar/stackviews.h"
#include "menubar/templateimageview.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const std::optional<QColor> nothing = QColor(Qt::transparent);

/// The glyph's own colours absent, or transparent where only the other layer is of interest.
struct Layers
{
    std::optional<QColor> border = {};
    std::optional<QColor> inside = {};
};
const Layers fillOnly { .border = nothing };
const Layers outlineOnly { .inside = nothing };

AnyView vert1(double percent, const Layers &layers)
{
    return VertBattery1View { percent, layers.border, layers.inside };
}

AnyView horz1(double percent, const Layers &layers)
{
    return HorzBattery1View { percent, layers.border, layers.inside };
}

AnyView vert2(double percent, const Layers &layers, BatteryStyle style = BatteryStyle::normal,
              VertBatt2BorderThickness border = VertBatt2BorderThickness::mid)
{
    return VertBattery2View { percent, style, border, layers.border, layers.inside };
}

AnyView horz2(double percent, const Layers &layers, BatteryStyle style = BatteryStyle::normal,
              HorzBatt2BorderThickness border = HorzBatt2BorderThickness::mid)
{
    return HorzBattery2View { percent, style, border, layers.border, layers.inside };
}

struct Geometry
{
    AnyView (*glyph)(double);
    bool upright;
    double fullLength;
    double thickness;
    /// Of the fill's rectangle, logical pixels from the glyph's left and lower edges.
    double left;
    double bottom;
};

void addScalesAndCharges()
{
    QTest::addColumn<Geometry>("geometry");
    QTest::addColumn<double>("percent");
    QTest::addColumn<int>("scale");
    struct Named
    {
        const char *name;
        Geometry geometry;
    };
    const Named all[] = {
        { "vert 1", { [](double p) { return vert1(p, fillOnly); }, true, 12, 6, 0, 0 } },
        { "horz 1", { [](double p) { return horz1(p, fillOnly); }, false, 18, 8, 0, 0 } },
        { "vert 2", { [](double p) { return vert2(p, fillOnly); }, true, 12, 6, 2, 2 } },
        { "horz 2", { [](double p) { return horz2(p, fillOnly); }, false, 16, 7, 2.5, 2 } },
    };
    for (const Named &named : all) {
        for (const double percent : { 5.0, 37.0, 50.0, 80.0, 100.0 }) {
            for (const int scale : { 1, 2, 3 })
                QTest::addRow("%s, %g %%, %dx", named.name, percent, scale)
                    << named.geometry << percent << scale;
        }
    }
}

double inkAlong(const Geometry &geometry, const QImage &image)
{
    const QRect ink = inkedRect(image);
    return geometry.upright ? inkOfColumn(image, ink.center().x())
                            : inkOfRow(image, ink.center().y());
}

} // namespace

Q_DECLARE_METATYPE(Geometry)

class GlyphsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFillIsAsLongAsTheCharge_data() { addScalesAndCharges(); }

    void theFillIsAsLongAsTheCharge()
    {
        QFETCH(Geometry, geometry);
        QFETCH(double, percent);
        QFETCH(int, scale);
        const QImage image = painted(geometry.glyph(percent), scale);
        const double length = percent * geometry.fullLength / 100 * scale;
        QVERIFY(near(inkAlong(geometry, image) / 0.875, length, 0.1));
    }

    void theFillHasItsOwnRoundingAndStrength()
    {
        const auto fill = [](const QSizeF &size, qreal opacity) {
            return AnyView(FillView { .size = size, .opacity = opacity, .cornerRadius = 1.2 });
        };
        const AnyView upright = VertBattery1View { 50 }.body(blackOnClear);
        QVERIFY(upright.as<OverlayView>()->layers.at(1) == fill({ 6, 6 }, 0.875));
        const AnyView lying = HorzBattery1View { 50 }.body(blackOnClear);
        QVERIFY(lying.as<OverlayView>()->layers.at(1) == fill({ 9, 8 }, 0.875));
        const AnyView second = SizeForBorder { .percent = 50 }.applied({}, 0.5);
        QVERIFY(second == AnyView(OffsetView { fill({ 8, 7 }, 0.5), { 2.5, 0 } }));
    }

    void theFillStandsInsideItsOutline_data() { addScalesAndCharges(); }

    void theFillStandsInsideItsOutline()
    {
        QFETCH(Geometry, geometry);
        QFETCH(double, percent);
        QFETCH(int, scale);
        const QImage image = painted(geometry.glyph(percent), scale);
        const double length = percent * geometry.fullLength / 100;
        const double width = geometry.upright ? geometry.thickness : length;
        const double height = geometry.upright ? length : geometry.thickness;
        const QRectF expected(geometry.left * scale,
                              image.height() - (geometry.bottom + height) * scale, width * scale,
                              height * scale);
        QCOMPARE(inkedRect(image), expected.toAlignedRect());
    }

    void noChargeDrawsAnEmptyOutline()
    {
        for (const auto &glyph : { vert1(0, {}), horz1(0, {}), vert2(0, {}), horz2(0, {}) })
            QVERIFY(!inkedRect(painted(glyph, 2)).isEmpty());
        QCOMPARE(painted(vert1(0, {}), 2), painted(vert1(0, outlineOnly), 2));
        QCOMPARE(painted(horz1(0, {}), 2), painted(horz1(0, outlineOnly), 2));
        QCOMPARE(painted(vert2(0, {}), 2), painted(vert2(0, outlineOnly), 2));
        QCOMPARE(painted(horz2(0, {}), 2), painted(horz2(0, outlineOnly), 2));
    }

    void aFullFillLeavesAGapToEveryWall_data()
    {
        QTest::addColumn<AnyView>("fill");
        QTest::addColumn<AnyView>("outline");
        using enum VertBatt2BorderThickness;
        QTest::newRow("vert min") << vert2(100, fillOnly, {}, min)
                                  << vert2(100, outlineOnly, {}, min);
        QTest::newRow("vert mid") << vert2(100, fillOnly, {}, mid)
                                  << vert2(100, outlineOnly, {}, mid);
        using H = HorzBatt2BorderThickness;
        QTest::newRow("horz min") << horz2(100, fillOnly, {}, H::min)
                                  << horz2(100, outlineOnly, {}, H::min);
        QTest::newRow("horz mid") << horz2(100, fillOnly, {}, H::mid)
                                  << horz2(100, outlineOnly, {}, H::mid);
        QTest::newRow("horz max") << horz2(100, fillOnly, {}, H::max)
                                  << horz2(100, outlineOnly, {}, H::max);
    }

    void aFullFillLeavesAGapToEveryWall()
    {
        QFETCH(AnyView, fill);
        QFETCH(AnyView, outline);
        // Quarters of a pixel are whole ones here.
        const QImage inside = painted(fill, 4);
        const QImage walls = painted(outline, 4);
        for (int y = 1; y < inside.height() - 1; ++y) {
            for (int x = 1; x < inside.width() - 1; ++x) {
                if (opacityAt(inside, x, y) == 0)
                    continue;
                for (const QPoint at : { QPoint(x - 1, y), QPoint(x + 1, y), QPoint(x, y - 1),
                                         QPoint(x, y + 1), QPoint(x, y) })
                    QVERIFY2(opacityAt(walls, at.x(), at.y()) == 0,
                             qPrintable(u"wall at %1, %2"_s.arg(x).arg(y)));
            }
        }
    }

    void aFirstGenerationFillCoversTheWholeBody()
    {
        const QImage upright = painted(vert1(100, {}), 2);
        QVERIFY(near(opacityAt(upright, 6, upright.height() - 1), 0.9375, 0.01));
        QVERIFY(near(opacityAt(upright, 6, 1), 0.5, 0.01));
        const QImage level = painted(horz1(100, {}), 2);
        QVERIFY(near(opacityAt(level, 0, 8), 0.9375, 0.01));
        QVERIFY(near(opacityAt(level, level.width() - 2, 8), 0.5, 0.01));
    }

    void theStyleSaysWhatIsStrong_data()
    {
        QTest::addColumn<BatteryStyle>("style");
        QTest::addColumn<double>("outline");
        QTest::addColumn<double>("fill");
        QTest::newRow("normal") << BatteryStyle::normal << 0.5 << 0.875;
        QTest::newRow("inverted") << BatteryStyle::inverted << 0.875 << 0.5;
        QTest::newRow("black") << BatteryStyle::black << 0.875 << 0.875;
    }

    void theStyleSaysWhatIsStrong()
    {
        QFETCH(BatteryStyle, style);
        QFETCH(double, outline);
        QFETCH(double, fill);
        for (const AnyView &glyph : { vert2(100, {}, style), horz2(100, {}, style) }) {
            const QImage image = painted(glyph, 4);
            const QPoint wall(image.width() / 2, image.height() - 2);
            QVERIFY(near(opacityAt(image, wall.x(), wall.y()), outline, 0.01));
            QVERIFY(near(opacityAt(image, wall.x(), image.height() / 2), fill, 0.01));
        }
    }

    void theThickestOutlineLeavesTheFillLessHeight()
    {
        using H = HorzBatt2BorderThickness;
        QCOMPARE(inkedRect(painted(horz2(100, fillOnly, {}, H::min), 2)).height(), 14);
        QCOMPARE(inkedRect(painted(horz2(100, fillOnly, {}, H::mid), 2)).height(), 14);
        QCOMPARE(inkedRect(painted(horz2(100, fillOnly, {}, H::max), 2)).height(), 12);
    }

    void theOutlineIsNamedAfterItsStroke()
    {
        QCOMPARE(rawValue(VertBatt2BorderThickness::min), u"vertBatt2Border.100"_s);
        QCOMPARE(rawValue(VertBatt2BorderThickness::mid), u"vertBatt2Border.125"_s);
        QCOMPARE(rawValue(HorzBatt2BorderThickness::min), u"horzBatt2Border.100"_s);
        QCOMPARE(rawValue(HorzBatt2BorderThickness::mid), u"horzBatt2Border.125"_s);
        QCOMPARE(rawValue(HorzBatt2BorderThickness::max), u"horzBatt2Border.150"_s);
    }

    void aColorOfItsOwnTintsOneLayerOnly()
    {
        const QImage image = painted(horz2(100, { QColor(0, 0, 255), QColor(0, 255, 0) }), 4);
        QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).green(), 255);
        QCOMPARE(image.pixelColor(image.width() / 2, 1).blue(), 255);
    }

    void theBoltAndItsGapStandWhereTheBatteryWantsThem_data()
    {
        QTest::addColumn<AnyView>("glyph");
        QTest::addColumn<AnyView>("battery");
        QTest::addColumn<QPointF>("offset");
        QTest::newRow("first generation")
            << HorzBattery1WithBoltView { 37 }.body(blackOnClear) << horz1(37, {}) << QPointF(0, 0);
        for (const BatteryStyle style :
             { BatteryStyle::normal, BatteryStyle::inverted, BatteryStyle::black }) {
            QTest::addRow("second generation, style %d", int(style))
                << HorzBattery2WithBoltView { 37, style }.body(blackOnClear)
                << horz2(37, {}, style, HorzBatt2BorderThickness::mid) << QPointF(1.0, -0.5);
        }
    }

    void theBoltAndItsGapStandWhereTheBatteryWantsThem()
    {
        QFETCH(AnyView, glyph);
        QFETCH(AnyView, battery);
        QFETCH(QPointF, offset);
        const TemplateImageView mask { .name = u"customBoltMask"_s };
        const TemplateImageView bolt { .name = u"customBolt"_s, .opacity = 0.875 };
        const AnyView expected = OverlayView {
            .layers
            = { CutOutView { battery, OffsetView { mask, offset } }, OffsetView { bolt, offset } },
        };
        QVERIFY(glyph == expected);
    }

    void theBoltStandsInAGapOfTheBattery_data()
    {
        QTest::addColumn<AnyView>("glyph");
        QTest::addColumn<AnyView>("battery");
        QTest::newRow("first generation")
            << AnyView(HorzBattery1WithBoltView { 100 }) << horz1(100, {});
        QTest::newRow("second generation")
            << AnyView(HorzBattery2WithBoltView { 100, BatteryStyle::black })
            << horz2(100, {}, BatteryStyle::black);
    }

    void theBoltStandsInAGapOfTheBattery()
    {
        QFETCH(AnyView, glyph);
        QFETCH(AnyView, battery);
        const QSizeF size(30, 22);
        const QImage with = painted(glyph, size, 4);
        const QImage without = painted(battery, size, 4);
        int cut = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x)
                cut += opacityAt(without, x, y) > 0.4 && opacityAt(with, x, y) < 0.1;
        }
        QVERIFY(cut > 100);
        // The bolt's own middle is as strong as a text.
        QVERIFY(near(opacityAt(with, 60, 44), 0.875, 0.02));
        QCOMPARE(inkedRect(with).width(), inkedRect(without).width());
    }
};

FERRIN_TEST(QGuiApplication, GlyphsTest)
#include "test_glyphs.moc"
