// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "itemsamples.h"
#include "menubar/itemform.h"
#include "menubar/stackviews.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using enum BatteryChargingStatus;

namespace {

QImage paint(const Size &size, const ItemContent &content)
{
    return paintForm(size.form, content, size.height, size.scale, blackOnClear);
}

double strongest(const QImage &image)
{
    double most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, opacityAt(image, x, y));
    }
    return most;
}

bool isRedSomewhere(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 64 && color.red() > 128)
                return true;
        }
    }
    return false;
}

} // namespace

class ItemFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsHighAsAskedFor_data() { addEveryFormOfEverySample(); }

    void isAsHighAsAskedFor()
    {
        QFETCH(Size, size);
        QFETCH(ItemContent, content);
        const QImage image = paint(size, content);
        QCOMPARE(image.height(), int(std::lround(size.height * size.scale)));
        QCOMPARE(image.format(), QImage::Format_ARGB32);
        QCOMPARE(image.devicePixelRatio(), 1.0);
        if (size.form == ItemForm::Square || size.form == ItemForm::Glyph)
            QCOMPARE(image.width(), image.height());
    }

    void isLegible_data() { addEveryFormOfEverySample(); }

    void isLegible()
    {
        QFETCH(Size, size);
        QFETCH(ItemContent, content);
        if (size.form == ItemForm::Glyph && !content.icon)
            return;
        QVERIFY(strongest(paint(size, content)) > 0.6);
    }

    /// What a picture cuts off would show on a larger one.
    void cutsNothingOff_data() { addEveryFormOfEverySample(); }

    void cutsNothingOff()
    {
        QFETCH(Size, size);
        QFETCH(ItemContent, content);
        if (size.form != ItemForm::Wide || size.height < 22)
            return;
        if (size.height > 24) {
            // The view is enlarged: here its ink may not reach the sides.
            const QImage image = paint(size, content);
            const QRect ink = inkedRect(image);
            QVERIFY(ink.left() > 0 && ink.right() < image.width() - 1);
            return;
        }
        const int slack = std::floor(size.scale) == size.scale ? 0 : 1;
        const QSizeF exact = QSizeF(paint(size, content).size() - QSize(slack, 0)) / size.scale;
        // The picture has air at its sides.
        const QSizeF room = exact - QSizeF(4, 0);
        QImage roomy(((exact + QSizeF(8, 8)) * size.scale).toSize(),
                     QImage::Format_ARGB32_Premultiplied);
        roomy.fill(Qt::transparent);
        QPainter painter(&roomy);
        painter.scale(size.scale, size.scale);
        viewFor(content).paint(painter, QRectF(QPointF(6, 4), room), blackOnClear);
        painter.end();
        QCOMPARE(inkedRect(paint(size, content)).size(), inkedRect(roomy).size());
    }

    void textsKeepClearOfTheUpperAndLowerEdge_data()
    {
        QTest::addColumn<Size>("size");
        for (const Size &size : sizes) {
            if (size.form != ItemForm::Glyph)
                QTest::addRow("form %d, %d at %g", int(size.form), size.height, size.scale) << size;
        }
    }

    void textsKeepClearOfTheUpperAndLowerEdge()
    {
        QFETCH(Size, size);
        const QImage image = paint(size, contentOf({}, u"88"_s, u"8:88"_s));
        // Round figures reach a shade beyond their height; a whole row would be strongly inked.
        QVERIFY(inkOfRow(image, 0) < 1.5);
        QVERIFY(inkOfRow(image, image.height() - 1) < 1.5);
    }

    void oneLineIsWiderThanTwo()
    {
        const ItemContent all = contentOf(Icon::battery2H, u"37"_s, u"4:29"_s);
        QVERIFY(paint({ ItemForm::OneLine, 22, 1 }, all).width()
                > paint({ ItemForm::Wide, 22, 1 }, all).width());
    }

    void oneLineGrowsWithItsHeight()
    {
        const ItemContent all = contentOf(Icon::battery2H, u"37"_s, u"4:29"_s);
        const int small = paint({ ItemForm::OneLine, 16, 1 }, all).width();
        QVERIFY(near(paint({ ItemForm::OneLine, 32, 1 }, all).width(), 2 * small, 2));
    }

    void wideFormsKeepAwayFromTheirNeighbours()
    {
        const ItemContent all = contentOf(Icon::battery2H, u"37"_s, u"4:29"_s);
        for (const ItemForm form : { ItemForm::Wide, ItemForm::OneLine }) {
            const QImage image = paint({ form, 22, 1 }, all);
            const QRect ink = inkedRect(image);
            QVERIFY(ink.left() >= 2);
            QVERIFY(ink.right() <= image.width() - 3);
        }
    }

    void aBoltFillsItsBatteryWhereTheFiguresStandBelow()
    {
        const ItemContent full = contentOf(Icon::battery2HWithBolt, u"100"_s, {});
        const QImage image = paint({ ItemForm::Square, 22, 1 }, full);
        const QImage battery = image.copy(0, 0, 22, 12);
        QCOMPARE(inkedRect(battery), QRect(0, 0, 22, 12));
    }

    void theGlyphOfALyingBatteryStandsOnThePixelGrid()
    {
        const ItemContent content = contentOf(Icon::battery2H, {}, {});
        const QImage image = paint({ ItemForm::Glyph, 16, 1 }, content);
        QCOMPARE(inkedRect(image), QRect(0, 3, 16, 10));
    }

    void oneLineKeepsItsTextSizeBesideATallIcon()
    {
        const auto widthWith = [](Icon icon) {
            const QImage both = paint({ ItemForm::OneLine, 16, 1 }, contentOf(icon, u"37"_s, {}));
            const QImage alone = paint({ ItemForm::OneLine, 16, 1 }, contentOf(icon, {}, {}));
            return both.width() - alone.width();
        };
        QVERIFY(near(widthWith(Icon::battery2V), widthWith(Icon::battery2H), 1));
    }

    void theWideFormIsTheViewItself()
    {
        const ItemContent all = contentOf(Icon::battery2H, u"37"_s, u"4:29"_s);
        // With air at its sides.
        const AnyView view = PaddedView { .content = viewFor(all), .margins = { 2, 0, 2, 0 } };
        const QSizeF size(std::ceil(view.idealSize(blackOnClear).width()), 22);
        QCOMPARE(paint({ ItemForm::Wide, 22, 1 }, all),
                 painted(view, size).convertToFormat(QImage::Format_ARGB32));
    }

    void aLowBarShrinksTheWideForm()
    {
        const ItemContent all = contentOf(Icon::battery2H, u"88"_s, u"8:88"_s);
        const QImage image = paint({ ItemForm::Wide, 14, 1 }, all);
        QVERIFY(image.width() < paint({ ItemForm::Wide, 22, 1 }, all).width());
        QVERIFY(inkedRect(image).height() <= 14);
    }

    void figuresInASquareAreAtLeastSevenPixelsHighAtTwentyTwo()
    {
        for (const Sample &sample : samples) {
            if (!sample.content.time || (!sample.content.icon && !sample.content.charge))
                continue;
            const QImage image = paint({ ItemForm::Square, 22, 1 }, sample.content);
            const QRect time = inkedRect(image.copy(0, 13, 22, 9));
            QVERIFY2(time.height() >= 7, sample.name);
            QVERIFY2(time.width() >= 16, sample.name);
        }
    }

    void theTimeOfASquareStandsApartFromWhatIsAbove()
    {
        for (const Sample &sample : samples) {
            if (!sample.content.time || !sample.content.icon)
                continue;
            for (const int side : { 19, 22, 24, 32, 44 }) {
                const QImage image = paint({ ItemForm::Square, side, 1 }, sample.content);
                int clearRows = 0;
                for (int y = side / 3; y < side * 3 / 4; ++y)
                    clearRows += inkOfRow(image, y) < 0.01;
                QVERIFY2(clearRows >= 1,
                         qPrintable(u"%1 at %2"_s.arg(QString::fromLatin1(sample.name)).arg(side)));
            }
        }
    }

    void aLowBatteryIsRedInASquare()
    {
        const auto square = [](Icon icon, double level, BatteryChargingStatus status) {
            return paint({ ItemForm::Square, 22, 1 },
                         contentOf(icon, u"8"_s, u"0:09"_s, status, level));
        };
        QVERIFY(isRedSomewhere(square(Icon::battery2H, 8, discharging)));
        QVERIFY(isRedSomewhere(square(Icon::battery1V, 10, discharging)));
        QVERIFY(!isRedSomewhere(square(Icon::battery2H, 11, discharging)));
        QVERIFY(!isRedSomewhere(square(Icon::battery2H, 8, charging)));
        QVERIFY(!isRedSomewhere(square(Icon::battery2HWithBolt, 8, discharging)));
    }

    void aLowBatteryIsRedAllAround()
    {
        const ItemContent low = contentOf(Icon::battery2H, u"1"_s, u"0:02"_s, discharging, 1);
        const QImage image = paint({ ItemForm::Square, 22, 1 }, low);
        QVERIFY(isRedSomewhere(image.copy(0, 0, 2, 12)));
        QVERIFY(isRedSomewhere(image.copy(18, 0, 4, 12)));
    }

    void aBoltIsSeenInASquare()
    {
        const ItemContent with = contentOf(Icon::battery2HWithBolt, u"78"_s, u"0:52"_s, charging);
        const ItemContent without = contentOf(Icon::battery2H, u"78"_s, u"0:52"_s, charging);
        QVERIFY(paint({ ItemForm::Square, 22, 1 }, with)
                != paint({ ItemForm::Square, 22, 1 }, without));
    }

    void theGlyphShowsNoText()
    {
        QCOMPARE(paint({ ItemForm::Glyph, 16, 1 }, contentOf(Icon::battery2H, u"37"_s, u"4:29"_s)),
                 paint({ ItemForm::Glyph, 16, 1 }, contentOf(Icon::battery2H, {}, {})));
    }

    void theGlyphIsClearWithoutAnIcon()
    {
        const QImage image = paint({ ItemForm::Glyph, 16, 1 }, contentOf({}, u"37"_s, {}));
        QVERIFY(inkedRect(image).isNull());
        QCOMPARE(image.size(), QSize(16, 16));
    }

    void aLargePictureIsHalvedExactly()
    {
        for (const Sample &sample : samples) {
            const QImage once = paint({ ItemForm::Wide, 24, 1 }, sample.content);
            QCOMPARE(paint({ ItemForm::Wide, 24, 2 }, sample.content).size(), once.size() * 2);
        }
    }

    void colorsAreNotMultipliedByTheirOpacity()
    {
        ViewContext white = blackOnClear;
        white.text = Qt::white;
        const QImage image
            = paintForm(ItemForm::Wide, contentOf(Icon::battery2H, {}, {}), 22, 1, white);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 16)
                    QVERIFY(qRed(image.pixel(x, y)) > 240);
            }
        }
    }

    void equalContentsMakeEqualPictures()
    {
        for (const Sample &sample : samples)
            QCOMPARE(paint({ ItemForm::Wide, 22, 1 }, sample.content),
                     paint({ ItemForm::Wide, 22, 1 }, sample.content));
    }
};

FERRIN_TEST(QGuiApplication, ItemFormTest)
#include "test_itemform.moc"
