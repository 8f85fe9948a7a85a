// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/core/providerbench.h"
#include "tests/support/changesignals.h"
#include "tests/support/lastwords.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::ProviderBench;

namespace {

const QString serviceFound = u"info: Connection to AppleSmartBattery service successful"_s;
const QString serviceMissing = u"error: AppleSmartBattery service not found"_s;
const QString sourcesFound = u"info: Connection to IOPowerSources successful"_s;

} // namespace

class TestBatteryDataProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsTheSnapshotBeforeAnythingIsShown();
    void connectsToItsSourcesInTheirOrder();
    void readsThePowerSourcesAtTheStartThoughNoTimeIsAskedFor();
    void refreshesEveryFiveSeconds();
    void looksUpItsValuesInTheirOrder();
    void neverRunsTheReportToolByItself();
    void showsTheChargeAndTheFullCapacity();
    void forgetsTheChargeAndTheFullCapacityWhenTheyGoMissing();
    void takesAValueOfTheWrongTypeForMissing();
    void knowsThePowerSource_data();
    void knowsThePowerSource();
    void remembersThePowerSourceOfTheRefreshBefore();
    void showsTheAdaptersDetails();
    void forgetsTheAdaptersDetails();
    void takesAnAdapterDetailOfTheWrongTypeForMissing();
    void knowsTheChargingStatus_data();
    void knowsTheChargingStatus();
    void tellsNobodyWhenNothingChanges();
    void logsNothingWhileItRefreshes();
    void livesWithoutABattery();
    void cannotBeSharedBeforeItsPlatformIsHandedOver();
    void isSharedOnThePlatformHandedOver();
};

void TestBatteryDataProvider::fillsTheSnapshotBeforeAnythingIsShown()
{
    ProviderBench bench;
    bench.start();
    QCOMPARE(bench.data->charge(), 80);
    QCOMPARE(bench.data->powerSource(), PowerSource::battery);
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::discharging);
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 15 }));
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::real);
    QCOMPARE(bench.provider->lastPowerSource(), PowerSource::unknown);
    QCOMPARE(bench.provider->adapterConnectedCounter(), 0);
    QVERIFY(bench.provider->batteryIOService().connected());
    QVERIFY(!bench.provider->batteryIOPS().entryFlag());
    QCOMPARE(bench.provider->batteryShell().response(), std::nullopt);
    bench.log.ignoreRest();
}

void TestBatteryDataProvider::connectsToItsSourcesInTheirOrder()
{
    ProviderBench bench;
    bench.start();
    QCOMPARE(bench.log.take(), QStringList({ serviceFound, sourcesFound }));
}

void TestBatteryDataProvider::readsThePowerSourcesAtTheStartThoughNoTimeIsAskedFor()
{
    ProviderBench bench;
    bench.remove("TimeRemaining");
    bench.start();
    QCOMPARE(bench.log.take(), QStringList({ serviceFound, sourcesFound }));
    QCOMPARE(bench.powerSources.snapshots, 1);
    bench.refresh();
    QCOMPARE(bench.powerSources.snapshots, 1);
}

void TestBatteryDataProvider::refreshesEveryFiveSeconds()
{
    static_assert(BatteryDataProvider::REFRESH_RATE_IN_SECONDS == 5.0);
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    const QTimer &timer = bench.provider->timer();
    QVERIFY(timer.isActive());
    QVERIFY(!timer.isSingleShot());
    QCOMPARE(timer.interval(), 5000);
    QCOMPARE(timer.timerType(), Qt::CoarseTimer);

    bench.set("CurrentCapacity", 79);
    QTRY_COMPARE_WITH_TIMEOUT(bench.data->charge(), 79, 20000);
}

void TestBatteryDataProvider::looksUpItsValuesInTheirOrder()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.registry.lookups.clear();
    bench.refresh();
    const QStringList expected {
        u"CurrentCapacity"_s, u"MaxCapacity"_s,    u"AppleRawMaxCapacity"_s, u"ExternalConnected"_s,
        u"FullyCharged"_s,    u"IsCharging"_s,     u"ChargingHeld"_s,        u"AdapterDetails"_s,
        u"AdapterDetails"_s,  u"AdapterDetails"_s, u"AdapterDetails"_s,      u"AdapterDetails"_s,
        u"TimeRemaining"_s,   u"TimeRemaining"_s,
    };
    QCOMPARE(bench.registry.lookups, expected);
}

void TestBatteryDataProvider::neverRunsTheReportToolByItself()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.refresh();
    QVERIFY(bench.launcher.runs.isEmpty());
}

void TestBatteryDataProvider::showsTheChargeAndTheFullCapacity()
{
    ProviderBench bench;
    bench.set("CurrentCapacity", 4123);
    bench.set("MaxCapacity", 4321);
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->charge(), 95);
    QCOMPARE(bench.data->rawMaxCapacity(), 6000);
}

void TestBatteryDataProvider::forgetsTheChargeAndTheFullCapacityWhenTheyGoMissing()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.remove("CurrentCapacity");
    bench.remove("AppleRawMaxCapacity");
    bench.refresh();
    QCOMPARE(bench.data->charge(), std::nullopt);
    QCOMPARE(bench.data->rawMaxCapacity(), std::nullopt);
}

void TestBatteryDataProvider::takesAValueOfTheWrongTypeForMissing()
{
    ProviderBench bench;
    bench.set("CurrentCapacity", u"80"_s);
    bench.set("AppleRawMaxCapacity", true);
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->charge(), std::nullopt);
    QCOMPARE(bench.data->rawMaxCapacity(), std::nullopt);
    QCOMPARE(bench.data->powerSource(), PowerSource::battery);
}

void TestBatteryDataProvider::knowsThePowerSource_data()
{
    QTest::addColumn<QVariant>("connected");
    QTest::addColumn<PowerSource>("source");
    QTest::newRow("external") << QVariant(true) << PowerSource::external;
    QTest::newRow("battery") << QVariant(false) << PowerSource::battery;
    QTest::newRow("missing") << QVariant() << PowerSource::unknown;
    QTest::newRow("a number") << QVariant(1) << PowerSource::unknown;
    QTest::newRow("a text") << QVariant(u"true"_s) << PowerSource::unknown;
}

void TestBatteryDataProvider::knowsThePowerSource()
{
    QFETCH(const QVariant, connected);
    ProviderBench bench;
    bench.set("ExternalConnected", connected);
    bench.start();
    bench.log.ignoreRest();
    QTEST(bench.data->powerSource(), "source");
}

void TestBatteryDataProvider::remembersThePowerSourceOfTheRefreshBefore()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    QSignalSpy spy(bench.provider.get(), &BatteryDataProvider::lastPowerSourceChanged);
    bench.plugIn();
    bench.refresh();
    QCOMPARE(bench.provider->lastPowerSource(), PowerSource::battery);
    bench.refresh();
    QCOMPARE(bench.provider->lastPowerSource(), PowerSource::external);
    QCOMPARE(spy.size(), 2);
    bench.refresh();
    QCOMPARE(spy.size(), 2);
    bench.remove("ExternalConnected");
    bench.refresh();
    QCOMPARE(bench.provider->lastPowerSource(), PowerSource::external);
    bench.refresh();
    QCOMPARE(bench.provider->lastPowerSource(), PowerSource::unknown);
}

void TestBatteryDataProvider::showsTheAdaptersDetails()
{
    ProviderBench bench;
    bench.plugIn();
    bench.setAdapter({ { u"Name"_s, u"65W charger"_s },
                       { u"Manufacturer"_s, u"Maker"_s },
                       { u"Watts"_s, 65 },
                       { u"Current"_s, 3250 },
                       { u"AdapterVoltage"_s, 20000 } });
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->adapterName(), u"65W charger"_s);
    QCOMPARE(bench.data->adapterManufacturer(), u"Maker"_s);
    QCOMPARE(bench.data->adapterWatts(), 65);
    QCOMPARE(bench.data->adapterCurrent(), 3.25F);
    QCOMPARE(bench.data->adapterVoltage(), 20.0F);
}

void TestBatteryDataProvider::forgetsTheAdaptersDetails()
{
    ProviderBench bench;
    bench.setAdapter({ { u"Name"_s, u"65W charger"_s },
                       { u"Manufacturer"_s, u"Maker"_s },
                       { u"Watts"_s, 65 },
                       { u"Current"_s, 3250 },
                       { u"AdapterVoltage"_s, 20000 } });
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->adapterWatts(), 65);
    bench.remove("AdapterDetails");
    bench.refresh();
    QCOMPARE(bench.data->adapterName(), std::nullopt);
    QCOMPARE(bench.data->adapterManufacturer(), std::nullopt);
    QCOMPARE(bench.data->adapterWatts(), std::nullopt);
    QCOMPARE(bench.data->adapterCurrent(), std::nullopt);
    QCOMPARE(bench.data->adapterVoltage(), std::nullopt);
}

void TestBatteryDataProvider::takesAnAdapterDetailOfTheWrongTypeForMissing()
{
    ProviderBench bench;
    bench.setAdapter({ { u"Name"_s, 65 },
                       { u"Manufacturer"_s, true },
                       { u"Watts"_s, u"65"_s },
                       { u"Current"_s, u"3250"_s },
                       { u"AdapterVoltage"_s, 20000 } });
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->adapterName(), std::nullopt);
    QCOMPARE(bench.data->adapterManufacturer(), std::nullopt);
    QCOMPARE(bench.data->adapterWatts(), std::nullopt);
    QCOMPARE(bench.data->adapterCurrent(), std::nullopt);
    QCOMPARE(bench.data->adapterVoltage(), 20.0F);
}

void TestBatteryDataProvider::knowsTheChargingStatus_data()
{
    using enum BatteryChargingStatus;
    QTest::addColumn<QVariant>("external");
    QTest::addColumn<QVariant>("full");
    QTest::addColumn<QVariant>("charging");
    QTest::addColumn<QVariant>("charge");
    QTest::addColumn<BatteryChargingStatus>("status");
    const auto row
        = [](const char *name, const QVariant &external, const QVariant &full,
             const QVariant &isCharging, const QVariant &charge, BatteryChargingStatus status) {
              QTest::newRow(name) << external << full << isCharging << charge << status;
          };
    const QVariant missing;
    row("full on external power", true, true, false, 100, charged);
    row("full and charging on external power", true, true, true, 100, charged);
    row("full below 100 on external power", true, true, false, 96, charged);
    row("full on battery power", false, true, false, 100, discharging);
    row("full and charging on battery power", false, true, true, 100, discharging);
    row("full on unknown power", missing, true, false, 100, discharging);
    row("charging", true, false, true, 42, charging);
    row("charging at 99", true, false, true, 99, charging);
    row("charging at 100", true, false, true, 100, finishingCharge);
    row("charging over 100", true, false, true, 101, charging);
    row("charging on battery power", false, false, true, 42, charging);
    row("neither on battery power", false, false, false, 42, discharging);
    row("neither on external power", true, false, false, 42, discharging);
    row("neither at 100", true, false, false, 100, discharging);
    row("full unknown", true, missing, true, 42, unknown);
    row("full not a bool", true, 1, true, 42, unknown);
    row("charging unknown", true, true, missing, 100, unknown);
    row("charging not a bool", true, true, u"Yes"_s, 100, unknown);
    row("charge unknown", true, true, false, missing, unknown);
}

void TestBatteryDataProvider::knowsTheChargingStatus()
{
    QFETCH(const QVariant, external);
    QFETCH(const QVariant, full);
    QFETCH(const QVariant, charging);
    QFETCH(const QVariant, charge);
    ProviderBench bench;
    bench.set("ExternalConnected", external);
    bench.set("FullyCharged", full);
    bench.set("IsCharging", charging);
    bench.set("CurrentCapacity", charge);
    bench.start();
    bench.log.ignoreRest();
    QTEST(bench.data->chargingStatus(), "status");
}

void TestBatteryDataProvider::tellsNobodyWhenNothingChanges()
{
    ProviderBench bench;
    bench.plugIn();
    bench.setEstimates(0, 135);
    bench.setAdapter({ { u"Watts"_s, 65 }, { u"Current"_s, 3250 } });
    bench.start();
    bench.log.ignoreRest();
    bench.provider->updateStaticData();
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const QMetaMethod &change : test::changeSignalsOf<BatteryData>())
        spies.push_back(std::make_unique<QSignalSpy>(bench.data, change));
    bench.refresh();
    bench.provider->updateStaticData();
    for (const auto &spy : spies)
        QVERIFY2(spy->isEmpty(), spy->signal().constData());

    bench.unplug();
    bench.refresh();
    QStringList changed;
    for (const auto &spy : spies) {
        if (!spy->isEmpty())
            changed.append(QString::fromLatin1(spy->signal()));
    }
    QCOMPARE(changed, QStringList({ u"chargingStatusChanged()"_s, u"powerSourceChanged()"_s }));
}

void TestBatteryDataProvider::logsNothingWhileItRefreshes()
{
    ProviderBench bench;
    bench.start();
    QCOMPARE(bench.log.take().size(), 2);
    bench.refresh();
    bench.refresh();
    QCOMPARE(bench.log.take(), QStringList());
}

void TestBatteryDataProvider::livesWithoutABattery()
{
    ProviderBench bench;
    bench.registry.serviceName.reset();
    bench.powerSources.descriptions = {};
    bench.launcher.answer = "Maximum Capacity: 87%\nCondition: Normal";
    bench.start();
    QCOMPARE(bench.log.take(),
             QStringList({ serviceMissing,
                           u"error: IOPSCopyPowerSourcesList returned an empty array of power "
                           u"sources"_s }));
    bench.refresh();
    QCOMPARE(bench.log.take(), QStringList());
    QCOMPARE(bench.data->charge(), std::nullopt);
    QCOMPARE(bench.data->powerSource(), PowerSource::unknown);
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::unknown);
    QVERIFY(bench.data->timeRemaining() == BatteryTime());
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::frozen);
    QCOMPARE(bench.storedDataAccesses, 0);
}

void TestBatteryDataProvider::cannotBeSharedBeforeItsPlatformIsHandedOver()
{
    QCOMPARE(test::lastWords([] { std::ignore = BatteryDataProvider::shared(); }),
             u"The battery data was asked for before its platform was handed over"_s);
}

void TestBatteryDataProvider::isSharedOnThePlatformHandedOver()
{
    // The shared provider is never destroyed, and neither may what it reads from be.
    static ProviderBench bench;
    BatteryDataProvider::setPlatform(bench.platform());
    QVERIFY(bench.registry.searches.isEmpty());
    BatteryDataProvider &provider = BatteryDataProvider::shared();
    QCOMPARE(&BatteryDataProvider::shared(), &provider);
    QCOMPARE(provider.data()->charge(), 80);
    QCOMPARE(bench.registry.searches.size(), 1);
    QCOMPARE(bench.log.take(), QStringList({ serviceFound, sourcesFound }));
}

FERRIN_TEST(QCoreApplication, TestBatteryDataProvider)
#include "test_batterydataprovider.moc"
