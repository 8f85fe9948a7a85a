// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "menubar/fittedtextview.h"
#include "menubar/textview.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <algorithm>
#include <vector>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

/// How much ink the median pixel has of those that have any worth seeing.
double toneOf(const QImage &image)
{
    std::vector<double> tones;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (const double tone = opacityAt(image, x, y); tone > 0.15)
                tones.push_back(tone);
        }
    }
    std::ranges::sort(tones);
    return tones.empty() ? 0 : tones[tones.size() / 2];
}

} // namespace

class TextViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsHighAsItsFontSize()
    {
        for (const int size : { 9, 11 })
            QCOMPARE(
                TextView({ .text = u"37"_s, .pixelSize = size }).idealSize(blackOnClear).height(),
                qreal(size));
    }

    void takesMoreRoomForMoreText()
    {
        const qreal two = TextView { .text = u"37"_s }.idealSize(blackOnClear).width();
        const qreal three = TextView { .text = u"100"_s }.idealSize(blackOnClear).width();
        QVERIFY(near(three / two, 1.5, 0.01));
    }

    void keepsItsFiguresInsideItsBox_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<qreal>("scale");
        for (const int size : { 9, 11 }) {
            for (const qreal scale : { 1.0, 1.25, 1.5, 2.0, 3.0 })
                QTest::addRow("%d at %g", size, scale) << size << scale;
        }
    }

    void keepsItsFiguresInsideItsBox()
    {
        QFETCH(int, size);
        QFETCH(qreal, scale);
        const TextView view { .text = u"0:%?89"_s, .pixelSize = size };
        const QSizeF ideal = view.idealSize(blackOnClear);
        const QSizeF room(ideal.width() + 4, ideal.height() + 8);
        const QRect ink = inkedRect(painted(view, room, scale));
        QVERIFY(!ink.isEmpty());
        QVERIFY(ink.top() >= int(4 * scale) - 1);
        QVERIFY(ink.bottom() <= int(std::ceil((4 + size) * scale)));
        QVERIFY(ink.left() >= int(scale));
        QVERIFY(ink.right() <= int(std::ceil((ideal.width() + 3) * scale)));
    }

    void standsInTheMiddleOfItsBox()
    {
        const TextView view { .text = u"88"_s, .pixelSize = 11 };
        const QRect ink = inkedRect(painted(view, { 40, 22 }, 2));
        QVERIFY(near(ink.center().y(), 22, 1));
        QVERIFY(near(ink.center().x(), 40, 1.5));
    }

    void paintsInTheTextColorAtItsOpacity()
    {
        const QImage image = painted(TextView { .text = u"1"_s }, { 60, 60 }, 6);
        double strongest = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                strongest = std::max(strongest, opacityAt(image, x, y));
        }
        QVERIFY(near(strongest, 0.875, 0.01));
    }

    void smallTextOnACoarseScreenIsAsDarkAsLargerText()
    {
        ViewContext coarse = blackOnClear;
        coarse.isCoarse = true;
        const auto toneAt = [&](int pixelSize) {
            return toneOf(painted(TextView { .text = u"37% 2:46"_s, .pixelSize = pixelSize },
                                  { 80, 20 }, 1, coarse));
        };
        QVERIFY(toneAt(9) > 0.95 * toneAt(14));
        QVERIFY(toneAt(11) > 0.95 * toneAt(14));
        // Nor darker by much.
        QVERIFY(toneAt(9) < 1.25 * toneAt(14));
    }

    void fittedFiguresFillTheHeightOfTheirPlace()
    {
        for (const int height : { 7, 8, 12, 24 }) {
            const QImage image = painted(FittedTextView { u"37"_s }, QSizeF(60, height + 4));
            const QImage exact = painted(FittedTextView { u"37"_s }, QSizeF(60, height));
            QVERIFY(!inkedRect(image).isEmpty());
            QVERIFY(inkedRect(exact).height() >= height - 2);
        }
    }

    void fittedFiguresAreSqueezedIntoTheWidthOfTheirPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("family");
        for (const QString &text : { u"78"_s, u"100"_s, u"12:05"_s, u"?:??"_s, u"100%"_s }) {
            for (const int width : { 14, 16, 22, 44 }) {
                for (const QString &family :
                     { u"DejaVu Sans"_s, u"DejaVu Sans Mono"_s, u"Serif"_s, u"no such font"_s })
                    QTest::addRow("%s in %d, %s", qPrintable(text), width, qPrintable(family))
                        << text << width << family;
            }
        }
    }

    void fittedFiguresAreSqueezedIntoTheWidthOfTheirPlace()
    {
        QFETCH(QString, text);
        QFETCH(int, width);
        QFETCH(QString, family);
        ViewContext context = blackOnClear;
        context.fontFamily = family;
        const FittedTextView view { text };
        QImage image(width + 20, 30, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        view.paint(painter, QRectF(10, 10, width, 10), context);
        painter.end();
        const QRect ink = inkedRect(image);
        QVERIFY(ink.left() >= 9);
        QVERIFY(ink.right() <= 10 + width);
        QVERIFY(ink.width() >= std::min(width, 16) / 2);
        QVERIFY(ink.top() >= 9 && ink.bottom() <= 20);
    }
};

FERRIN_TEST(QGuiApplication, TextViewTest)
#include "test_textview.moc"
