// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemform.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

ItemContent contentWith(Icon icon)
{
    constexpr auto status = BatteryChargingStatus::discharging;
    return { .status = status,
             .icon = IconElement { .icon = icon, .charge = 41, .status = status },
             .charge = u"41"_s,
             .time = u"4:13"_s };
}

/// How much ink differs, in whole pixels' worth.
double difference(const QImage &one, const QImage &other)
{
    const QSize size = one.size().expandedTo(other.size());
    double sum = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int first = one.valid(x, y) ? qAlpha(one.pixel(x, y)) : 0;
            const int second = other.valid(x, y) ? qAlpha(other.pixel(x, y)) : 0;
            sum += std::abs(first - second) / 255.0;
        }
    }
    return sum;
}

} // namespace

/// Every icon can be told from every other in every form in which hosts show the item.
class DistinguishableIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIconDiffersFromEveryOther_data();
    void everyIconDiffersFromEveryOther();
};

void DistinguishableIconsTest::everyIconDiffersFromEveryOther_data()
{
    QTest::addColumn<ItemForm>("form");
    QTest::addColumn<int>("height");
    QTest::newRow("wide") << ItemForm::Wide << 22;
    QTest::newRow("one line") << ItemForm::OneLine << 16;
    QTest::newRow("square") << ItemForm::Square << 22;
    QTest::newRow("large square") << ItemForm::Square << 44;
    QTest::newRow("glyph") << ItemForm::Glyph << 16;
}

void DistinguishableIconsTest::everyIconDiffersFromEveryOther()
{
    QFETCH(ItemForm, form);
    QFETCH(int, height);
    // A stroke of four pixels.
    constexpr double seen = 4;
    const ViewContext context { .text = Qt::black, .red = Qt::red, .fontFamily = u"Sans"_s };
    QList<QImage> images;
    for (const Icon icon : allIcons())
        images.append(paintForm(form, contentWith(icon), height, 1, context));
    for (qsizetype one = 0; one < images.size(); ++one) {
        for (qsizetype other = 0; other < one; ++other) {
            const double ink = difference(images[one], images[other]);
            QVERIFY2(ink >= seen,
                     qPrintable(u"%1 and %2: %3"_s
                                    .arg(rawValue(allIcons()[size_t(one)]),
                                         rawValue(allIcons()[size_t(other)]))
                                    .arg(ink)));
        }
    }
}

FERRIN_TEST(QGuiApplication, DistinguishableIconsTest)
#include "test_distinguishableicons.moc"
