// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/iconcatalogues.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <algorithm>
#include <vector>

using namespace ferrin;

namespace {

using Icons = std::vector<Icon>;

Icons copyOf(std::span<const Icon> list)
{
    return { list.begin(), list.end() };
}

/// The icons with these numbers in declaration order.
void appendRange(Icons &icons, int first, int last)
{
    for (int number = first; number <= last; ++number)
        icons.push_back(allIcons()[static_cast<std::size_t>(number)]);
}

bool offers(std::span<const Icon> list, Icon icon)
{
    return std::ranges::find(list, icon) != list.end();
}

} // namespace

class IconCataloguesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersTwentyIconsWhileDischarging()
    {
        Icons expected { Icon::battery1V,      Icon::battery1H,         Icon::battery2V,
                         Icon::battery2H,      Icon::battery2VInverted, Icon::battery2HInverted,
                         Icon::battery2VBlack, Icon::battery2HBlack };
        appendRange(expected, 24, 35);
        QCOMPARE(expected.size(), 20U);
        QCOMPARE(copyOf(DischargingIconsAvailable::shared().list), expected);
    }

    void offersThirtySixIconsWhileCharging()
    {
        Icons expected;
        appendRange(expected, 0, 23);
        appendRange(expected, 40, 51);
        QCOMPARE(expected.size(), 36U);
        QCOMPARE(copyOf(ChargingIconsAvailable::shared().list), expected);
    }

    void offersTwentyEightIconsWhenCharged()
    {
        Icons expected;
        appendRange(expected, 0, 11);
        appendRange(expected, 36, 51);
        QCOMPARE(expected.size(), 28U);
        QCOMPARE(copyOf(ChargedIconsAvailable::shared().list), expected);
    }

    void beginsEveryCatalogueWithTheUprightBattery()
    {
        QCOMPARE(DischargingIconsAvailable::shared().list.front(), Icon::battery1V);
        QCOMPARE(ChargingIconsAvailable::shared().list.front(), Icon::battery1V);
        QCOMPARE(ChargedIconsAvailable::shared().list.front(), Icon::battery1V);
    }

    void offersNoBoltWhileDischarging()
    {
        for (const Icon icon : { Icon::battery1HWithBolt, Icon::battery2HWithBolt,
                                 Icon::battery2HInvertedWithBolt, Icon::battery2HBlackWithBolt }) {
            QVERIFY(!offers(DischargingIconsAvailable::shared().list, icon));
            QVERIFY(offers(ChargingIconsAvailable::shared().list, icon));
            QVERIFY(offers(ChargedIconsAvailable::shared().list, icon));
        }
    }

    void offersUpToLineArrowsOnlyWhenCharged()
    {
        for (const Icon icon : { Icon::arrowUpToLineCircle, Icon::arrowUpToLineCircleFill,
                                 Icon::arrowUpToLineSquare, Icon::arrowUpToLineSquareFill }) {
            QVERIFY(!offers(DischargingIconsAvailable::shared().list, icon));
            QVERIFY(!offers(ChargingIconsAvailable::shared().list, icon));
            QVERIFY(offers(ChargedIconsAvailable::shared().list, icon));
        }
    }

    void existsOnceForTheProcess()
    {
        QCOMPARE(&DischargingIconsAvailable::shared(), &DischargingIconsAvailable::shared());
        QCOMPARE(&ChargingIconsAvailable::shared(), &ChargingIconsAvailable::shared());
        QCOMPARE(&ChargedIconsAvailable::shared(), &ChargedIconsAvailable::shared());
    }
};

FERRIN_TEST(void, IconCataloguesTest)
#include "test_iconcatalogues.moc"
