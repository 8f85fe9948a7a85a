// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/core/providerbench.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::ProviderBench;

class HeldBatteryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheTimeAvailable();
    void isNeverMistakenForAnotherState();
};

void HeldBatteryTest::tellsTheTimeAvailable()
{
    ProviderBench bench;
    bench.set("ExternalConnected", true);
    bench.set("ChargingHeld", true);
    bench.set("ChargeLimit", 80);
    bench.remove("TimeRemaining");
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::held);
    QCOMPARE(bench.data->chargeLimit(), 80);
    // 80 % of 6000 mAh at 300 mA.
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 16, 0 }));
    // At the usual draw, where one is known.
    bench.set("AvgTimeToEmpty", 310);
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 5, 10 }));
}

void HeldBatteryTest::isNeverMistakenForAnotherState()
{
    ProviderBench bench;
    bench.set("ExternalConnected", true);
    bench.set("ChargingHeld", false);
    bench.start();
    bench.log.ignoreRest();
    // A weak adapter: the battery is really drained beside it.
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::discharging);
    bench.set("ChargingHeld", true);
    bench.set("ChargeLimit", 80);
    bench.refresh();
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::held);
    bench.set("ChargingHeld", false);
    bench.refresh();
    QCOMPARE(bench.data->chargeLimit(), std::nullopt);
    bench.remove("CurrentCapacity");
    bench.set("ChargingHeld", true);
    bench.refresh();
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::unknown);
}

FERRIN_TEST(QCoreApplication, HeldBatteryTest)
#include "test_heldbattery.moc"
