// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/batteryfigures.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;

class BatteryFiguresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void weighsPacksByTheirEnergy();
    void weighsAPackOfUnknownSizeLikeTheOthers();
    void comparesChargesAtDifferentVoltages();
    void hasNoChargeWhenOnePackHasNone();
    void hasNoSumWhenOnePackDoesNotKnow();
    void hasNoFiguresWithoutPacks();
    void countsPhantomsOnlyWhenThereIsNothingElse();
    void isFullOnlyWhenEveryPackIs();
    void isChargedAt95PercentOnExternalPowerOnly_data();
    void isChargedAt95PercentOnExternalPowerOnly();
    void knowsNoChargingWithoutAStatus();
    void takesAHundredMilliampHoursForACapacityAndNoLess();
    void hasNoHealthWhereFullIsFarAboveTheDesign();
};

namespace {

BatterySupply battery(std::optional<ChargeStatus> status, Reading capacity = {},
                      Reading energyNow = {}, Reading energyFull = {})
{
    BatterySupply made;
    made.status = status;
    made.capacity = capacity;
    made.energyNow = energyNow;
    made.energyFull = energyFull;
    return made;
}

constexpr auto discharging = ChargeStatus::Discharging;

} // namespace

void BatteryFiguresTest::weighsPacksByTheirEnergy()
{
    const auto packs = packsOf({ battery(discharging, 100, 24'000'000, 24'000'000),
                                 battery(discharging, 0, 0, 72'000'000) });
    QCOMPARE(chargePercent(packs), 25);
}

void BatteryFiguresTest::weighsAPackOfUnknownSizeLikeTheOthers()
{
    const auto packs
        = packsOf({ battery(discharging, 100, 40'000'000, 40'000'000), battery(discharging, 50) });
    QCOMPARE(chargePercent(packs), 75);
    QCOMPARE(chargePercent(packsOf({ battery(discharging, 20), battery(discharging, 40) })), 30);
}

void BatteryFiguresTest::comparesChargesAtDifferentVoltages()
{
    BatterySupply low = battery(discharging);
    low.chargeNow = 0;
    low.chargeFull = 4'000'000;
    low.voltageMinDesign = 7'500'000;
    BatterySupply high = low;
    high.chargeNow = 4'000'000;
    high.voltageMinDesign = 15'000'000;
    QCOMPARE(chargePercent(packsOf({ low, high })), 66);
    QCOMPARE(fullMilliampHours(packsOf({ low, high })), 8000);
}

void BatteryFiguresTest::hasNoChargeWhenOnePackHasNone()
{
    const auto packs = packsOf({ battery(discharging, 80, 8, 10), battery(discharging) });
    QVERIFY(!chargePercent(packs));
}

void BatteryFiguresTest::hasNoSumWhenOnePackDoesNotKnow()
{
    BatterySupply known = battery(discharging, 50);
    known.chargeFull = 4'000'000;
    QCOMPARE(fullMilliampHours(packsOf({ known })), 4000);
    QCOMPARE(remainingMilliampHours(packsOf({ known })), 2000);
    const auto packs = packsOf({ known, battery(discharging, 50) });
    QVERIFY(!fullMilliampHours(packs));
    QVERIFY(!remainingMilliampHours(packs));
}

void BatteryFiguresTest::hasNoFiguresWithoutPacks()
{
    QVERIFY(!chargePercent({}));
    QVERIFY(!fullMilliampHours({}));
    QVERIFY(!remainingMilliampHours({}));
    QVERIFY(!isCharging({}));
    QVERIFY(!isFullyCharged({}, true));
}

void BatteryFiguresTest::countsPhantomsOnlyWhenThereIsNothingElse()
{
    const BatterySupply phantom = battery(ChargeStatus::Unknown, 0, 0, 0);
    const BatterySupply real = battery(discharging, 50, 5'000'000, 10'000'000);
    QCOMPARE(realPacks(packsOf({ phantom, real })).size(), 1U);
    QCOMPARE(realPacks(packsOf({ phantom, phantom })).size(), 2U);
    QCOMPARE(realPacks(packsOf({ battery(discharging), real })).size(), 2U);
}

void BatteryFiguresTest::isFullOnlyWhenEveryPackIs()
{
    const BatterySupply full = battery(ChargeStatus::Full, 100);
    const BatterySupply waiting = battery(ChargeStatus::NotCharging, 40);
    QCOMPARE(isFullyCharged(packsOf({ full, full }), true), true);
    QCOMPARE(isFullyCharged(packsOf({ full, waiting }), true), false);
    QCOMPARE(isFullyCharged(packsOf({ full, battery({}, 100) }), true), true);
    QCOMPARE(isFullyCharged(packsOf({ full, battery({}, 60) }), true), false);
    QCOMPARE(isFullyCharged(packsOf({ full, battery({}) }), true), std::nullopt);
}

void BatteryFiguresTest::isChargedAt95PercentOnExternalPowerOnly_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("external");
    QTest::addColumn<bool>("full");
    for (const ChargeStatus status : { ChargeStatus::NotCharging, ChargeStatus::Unknown }) {
        const int number = static_cast<int>(status);
        QTest::addRow("%d at 95 on power", number) << number << 95 << 1 << true;
        QTest::addRow("%d at 94 on power", number) << number << 94 << 1 << false;
        QTest::addRow("%d at 100 on battery", number) << number << 100 << 0 << false;
        QTest::addRow("%d at 95 on who knows", number) << number << 95 << -1 << false;
    }
    QTest::newRow("discharging at 100 on power")
        << static_cast<int>(ChargeStatus::Discharging) << 100 << 1 << false;
}

void BatteryFiguresTest::isChargedAt95PercentOnExternalPowerOnly()
{
    QFETCH(int, status);
    QFETCH(int, percent);
    QFETCH(int, external);
    const auto packs = packsOf({ battery(static_cast<ChargeStatus>(status), percent) });
    const std::optional<bool> power
        = external < 0 ? std::nullopt : std::optional<bool>(external != 0);
    QTEST(isFullyCharged(packs, power).value_or(false), "full");
}

void BatteryFiguresTest::knowsNoChargingWithoutAStatus()
{
    QVERIFY(!isCharging(packsOf({ battery({}) })));
    QCOMPARE(isCharging(packsOf({ battery({}, 50) })), false);
    QCOMPARE(isCharging(packsOf({ battery(ChargeStatus::Unknown, 50) })), false);
    QCOMPARE(isCharging(packsOf({ battery({}), battery(ChargeStatus::Charging) })), true);
}

void BatteryFiguresTest::takesAHundredMilliampHoursForACapacityAndNoLess()
{
    BatterySupply battery;
    battery.capacity = 50;
    battery.chargeFull = 100'000;
    QCOMPARE(packsOf({ battery }).front().fullMilliampHours, Reading(100));
    battery.chargeFull = 99'000;
    QVERIFY(!packsOf({ battery }).front().fullMilliampHours);
}

void BatteryFiguresTest::hasNoHealthWhereFullIsFarAboveTheDesign()
{
    BatteryRecord record;
    record.energyFullDesign = 50'000'000;
    QCOMPARE(healthPercent(battery(discharging, {}, {}, 40'000'000), record), 80);
    QCOMPARE(healthPercent(battery(discharging, {}, {}, 75'000'000), record), 100);
    QVERIFY(!healthPercent(battery(discharging, {}, {}, 75'000'001), record));
}

FERRIN_TEST(QCoreApplication, BatteryFiguresTest)
#include "test_batteryfigures.moc"
