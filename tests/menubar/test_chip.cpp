// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "ink.h"
#include "itemsamples.h"
#include "menubar/contrast.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace ferrin;
using namespace ferrin::test;

namespace {

const ViewContext whiteOnChip { .text = QColor(Qt::white),
                                .red = QColor(0xff, 0x77, 0x6c),
                                .fontFamily = u"DejaVu Sans"_s,
                                .chip = QColor(0x3e, 0x42, 0x47) };

QImage onBar(const QImage &image, const QColor &bar)
{
    QImage seen(image.size(), QImage::Format_RGB32);
    seen.fill(bar);
    QPainter(&seen).drawImage(0, 0, image);
    return seen;
}

/// What of a chip its round corners leave whole.
QRect inside(const QImage &image)
{
    const int corner = image.height() / 4;
    return image.rect().adjusted(corner, 1, -corner, -1);
}

bool contains(const QImage &image, const QColor &color, int tolerance = 2)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor found = image.pixelColor(x, y);
            if (std::abs(found.red() - color.red()) <= tolerance
                && std::abs(found.green() - color.green()) <= tolerance
                && std::abs(found.blue() - color.blue()) <= tolerance)
                return true;
        }
    }
    return false;
}

double strongestContrast(const QImage &image, const QColor &ground)
{
    double most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, contrast(image.pixelColor(x, y), ground));
    }
    return most;
}

} // namespace

/// The item on a ground of its own.
class ChipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The text and the glyph against their own ground, whatever is behind it.
    void aChipIsLegibleOnEveryBar_data() { addEveryFormOfEverySample(); }

    void aChipIsLegibleOnEveryBar()
    {
        QFETCH(Size, size);
        QFETCH(ItemContent, content);
        if (size.form == ItemForm::Glyph && !content.icon)
            return;
        const QImage image = paintForm(size.form, content, size.height, size.scale, whiteOnChip);
        for (const QColor &bar :
             { QColor(Qt::white), QColor(Qt::black), QColor(0x80, 0x80, 0x80) }) {
            const QImage seen = onBar(image, bar);
            // Where the item's own ground is, and the strongest of what stands on it.
            QVERIFY(contains(seen, *whiteOnChip.chip));
            QVERIFY(strongestContrast(seen.copy(inside(seen)), *whiteOnChip.chip) >= 3);
        }
    }

    void aChipHidesTheBarBehindIt()
    {
        for (const ItemForm form : { ItemForm::Wide, ItemForm::OneLine, ItemForm::Square }) {
            const QImage image = paintForm(form, samples.front().content, 22, 1, whiteOnChip);
            const QRect middle = inside(image);
            QCOMPARE(onBar(image, Qt::white).copy(middle), onBar(image, Qt::black).copy(middle));
        }
    }

    void redOnAChipIsLegible()
    {
        QVERIFY(contrast(whiteOnChip.red, *whiteOnChip.chip) >= 3);
        ItemContent low = contentOf(Icon::battery2H, u"8"_s, u"0:09"_s, discharging, 8);
        QVERIFY(contains(paintForm(ItemForm::Wide, low, 22, 2, whiteOnChip), whiteOnChip.red, 40));
    }

    void aSquareOnAChipKeepsItsFiguresLarge()
    {
        for (const int side : { 16, 19, 22, 24, 32, 44 }) {
            const ItemContent all = contentOf(Icon::battery2H, u"100"_s, u"12:05"_s);
            const QRect plain = inkedRect(paintForm(ItemForm::Square, all, side, 1, blackOnClear));
            ViewContext bare = blackOnClear;
            bare.chip = QColor(Qt::transparent);
            const QRect onChip = inkedRect(paintForm(ItemForm::Square, all, side, 1, bare));
            QVERIFY(plain.width() - onChip.width() <= 2 * (side / 11 + 1));
        }
    }
};

FERRIN_TEST(QGuiApplication, ChipTest)
#include "test_chip.moc"
