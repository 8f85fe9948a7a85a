// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/core/providerbench.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::ProviderBench;

namespace {

const QString deleting = u"info: Deleting all stored power adaper info"_s;

const QString nameKey = u"adapterNameStored"_s;
const QString manufacturerKey = u"adapterManufacturerStored"_s;
const QString wattsKey = u"adapterWattsStored"_s;
const QString voltageKey = u"adapterVoltageStored"_s;
const QString currentKey = u"adapterCurrentStored"_s;
const QStringList allKeys { nameKey, manufacturerKey, wattsKey, voltageKey, currentKey };

QVariantMap charger(int watts)
{
    return { { u"Name"_s, u"%1W charger"_s.arg(watts) },
             { u"Manufacturer"_s, u"Maker"_s },
             { u"Watts"_s, watts },
             { u"Current"_s, watts * 50 },
             { u"AdapterVoltage"_s, 20000 } };
}

/// The stored adapter of an earlier launch.
QVariantMap earlier()
{
    return { { nameKey, u"earlier"_s },
             { manufacturerKey, u"Other"_s },
             { wattsKey, 30 },
             { voltageKey, 15.0F },
             { currentKey, 2.0F } };
}

/// The provider has just seen that the adapter is connected, and stored a 65 W charger.
struct Connected : ProviderBench
{
    Connected()
    {
        plugIn();
        setAdapter(charger(65));
        start();
        log.ignoreRest();
    }

    void refreshTimes(int count)
    {
        for (int i = 0; i < count; ++i)
            refresh();
    }
};

} // namespace

class AdapterStorageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesTheStoreAloneOnBatteryPower();
    void copiesInEarlyRefreshesWithoutCountingThem();
    void leavesTheStoreAloneOnUnknownPower();
    void deletesAnEarlierAdapterWhenLaunchedOnExternalPower();
    void copiesTheLiveDetailsInTheirOrder();
    void storesTheAdapterBeforeItAsksForTheTime();
    void copiesOnFourConsecutiveRefreshes();
    void copiesDetailsThatArriveLate();
    void copiesAnAbsentDetailAsAbsent();
    void keepsAStoredCurrentThatGoesAbsent();
    void writesNeutralValuesOnceTheFourCopiesAreMade();
    void neverCopiesAPresentDetailAfterTheFourCopies();
    void writesEachNeutralValueOnlyOnce();
    void deletesAndCountsAnewOnReconnection();
    void setsTheCounterToZeroOnlyWhenItIsNot();
    void takesAReturnFromUnknownPowerForAConnection();
    void keepsTheCounterOnBatteryPower();
    void asksForTheStoredDataOnlyOnExternalPower();
};

void AdapterStorageTest::leavesTheStoreAloneOnBatteryPower()
{
    ProviderBench bench;
    bench.store.stored = earlier();
    bench.setAdapter(charger(65));
    bench.start();
    bench.refresh();
    QCOMPARE(bench.log.takeCount(u"Deleting"_s), 0);
    QCOMPARE(bench.store.stored, earlier());
    QCOMPARE(bench.store.writes, QStringList());
    QCOMPARE(bench.provider->adapterConnectedCounter(), 0);
}

void AdapterStorageTest::leavesTheStoreAloneOnUnknownPower()
{
    ProviderBench bench;
    bench.store.stored = earlier();
    bench.setAdapter(charger(65));
    bench.remove("ExternalConnected");
    bench.start();
    bench.refresh();
    QCOMPARE(bench.log.takeCount(u"Deleting"_s), 0);
    QCOMPARE(bench.store.writes, QStringList());
    QCOMPARE(bench.provider->adapterConnectedCounter(), 0);
}

void AdapterStorageTest::deletesAnEarlierAdapterWhenLaunchedOnExternalPower()
{
    ProviderBench bench;
    bench.store.stored = earlier();
    bench.plugIn();
    bench.start();
    QCOMPARE(bench.log.take().filter(u"Deleting"_s), QStringList(deleting));
    QCOMPARE(bench.store.stored, QVariantMap());
    QCOMPARE(bench.store.writes, allKeys);
    bench.refresh();
    QCOMPARE(bench.log.take(), QStringList());
}

void AdapterStorageTest::copiesTheLiveDetailsInTheirOrder()
{
    const Connected bench;
    QCOMPARE(bench.store.writes, allKeys + allKeys);
    QCOMPARE(bench.storedData.adapterName(), u"65W charger"_s);
    QCOMPARE(bench.storedData.adapterManufacturer(), u"Maker"_s);
    QCOMPARE(bench.storedData.adapterWatts(), 65);
    QCOMPARE(bench.storedData.adapterVoltage(), 20.0F);
    QCOMPARE(bench.storedData.adapterCurrent(), 3.25F);
}

void AdapterStorageTest::storesTheAdapterBeforeItAsksForTheTime()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.plugIn();
    bench.setAdapter(charger(65));
    bench.registry.lookups.clear();
    QString lastLookup;
    connect(&bench.storedData, &StoredData::adapterCurrentChanged, this,
            [&] { lastLookup = bench.registry.lookups.last(); });
    bench.refresh();
    QCOMPARE(lastLookup, u"AdapterDetails"_s);
    QCOMPARE(bench.registry.lookups.last(), u"TimeRemaining"_s);
}

void AdapterStorageTest::copiesOnFourConsecutiveRefreshes()
{
    Connected bench;
    QCOMPARE(bench.provider->adapterConnectedCounter(), 1);
    for (int copy = 2; copy <= 4; ++copy) {
        bench.setAdapter(charger(copy * 10));
        bench.refresh();
        QCOMPARE(bench.provider->adapterConnectedCounter(), copy);
        QCOMPARE(bench.storedData.adapterWatts(), copy * 10);
    }
    bench.setAdapter(charger(50));
    bench.refresh();
    QCOMPARE(bench.provider->adapterConnectedCounter(), 4);
    QCOMPARE(bench.storedData.adapterWatts(), 40);
}

void AdapterStorageTest::copiesDetailsThatArriveLate()
{
    ProviderBench bench;
    bench.plugIn();
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.store.stored, QVariantMap());
    bench.refresh();
    bench.refresh();
    bench.setAdapter(charger(65));
    bench.refresh();
    QCOMPARE(bench.storedData.adapterWatts(), 65);
    QCOMPARE(bench.storedData.adapterCurrent(), 3.25F);
}

void AdapterStorageTest::copiesAnAbsentDetailAsAbsent()
{
    Connected bench;
    bench.setAdapter({});
    bench.refresh();
    QCOMPARE(bench.storedData.adapterName(), std::nullopt);
    QCOMPARE(bench.storedData.adapterManufacturer(), std::nullopt);
    QCOMPARE(bench.storedData.adapterWatts(), std::nullopt);
    QCOMPARE(bench.storedData.adapterVoltage(), std::nullopt);
}

void AdapterStorageTest::keepsAStoredCurrentThatGoesAbsent()
{
    Connected bench;
    bench.setAdapter({});
    bench.refresh();
    QCOMPARE(bench.store.stored.keys(), QStringList(currentKey));
    QCOMPARE(bench.storedData.adapterCurrent(), 3.25F);
}

void AdapterStorageTest::writesNeutralValuesOnceTheFourCopiesAreMade()
{
    Connected bench;
    bench.refreshTimes(3);
    QCOMPARE(bench.provider->adapterConnectedCounter(), 4);
    bench.store.writes.clear();
    bench.setAdapter({});
    bench.refresh();
    QCOMPARE(bench.store.writes, allKeys);
    QCOMPARE(bench.storedData.adapterName(), u""_s);
    QCOMPARE(bench.storedData.adapterManufacturer(), u""_s);
    QCOMPARE(bench.storedData.adapterWatts(), 0);
    QCOMPARE(bench.storedData.adapterVoltage(), 0.0F);
    QCOMPARE(bench.storedData.adapterCurrent(), 0.0F);
}

void AdapterStorageTest::neverCopiesAPresentDetailAfterTheFourCopies()
{
    Connected bench;
    bench.refreshTimes(3);
    bench.setAdapter({ { u"Name"_s, u"other"_s }, { u"Current"_s, 1000 } });
    bench.refresh();
    QCOMPARE(bench.storedData.adapterName(), u"65W charger"_s);
    QCOMPARE(bench.storedData.adapterManufacturer(), u""_s);
    QCOMPARE(bench.storedData.adapterWatts(), 0);
    QCOMPARE(bench.storedData.adapterVoltage(), 0.0F);
    QCOMPARE(bench.storedData.adapterCurrent(), 3.25F);
    bench.setAdapter(charger(100));
    bench.refresh();
    QCOMPARE(bench.storedData.adapterWatts(), 0);
    QCOMPARE(bench.storedData.adapterManufacturer(), u""_s);
}

void AdapterStorageTest::writesEachNeutralValueOnlyOnce()
{
    Connected bench;
    bench.refreshTimes(3);
    bench.setAdapter({});
    bench.refresh();
    bench.store.writes.clear();
    QSignalSpy spy(&bench.storedData, &StoredData::adapterWattsChanged);
    bench.refreshTimes(3);
    QCOMPARE(bench.store.writes, QStringList());
    QCOMPARE(spy.size(), 0);
}

void AdapterStorageTest::deletesAndCountsAnewOnReconnection()
{
    Connected bench;
    bench.refreshTimes(5);
    bench.unplug();
    bench.refreshTimes(2);
    QCOMPARE(bench.storedData.adapterWatts(), 65);
    std::ignore = bench.log.take();

    bench.plugIn();
    bench.setAdapter(charger(100));
    bench.store.writes.clear();
    bench.refresh();
    QCOMPARE(bench.log.take(), QStringList(deleting));
    QCOMPARE(bench.store.writes, allKeys + allKeys);
    QCOMPARE(bench.provider->adapterConnectedCounter(), 1);
    QCOMPARE(bench.storedData.adapterWatts(), 100);

    bench.refreshTimes(3);
    QCOMPARE(bench.provider->adapterConnectedCounter(), 4);
    QCOMPARE(bench.log.take(), QStringList());
}

void AdapterStorageTest::setsTheCounterToZeroOnlyWhenItIsNot()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    QList<qint64> counts;
    connect(bench.provider.get(), &BatteryDataProvider::adapterConnectedCounterChanged, this,
            [&] { counts.append(bench.provider->adapterConnectedCounter()); });
    bench.plugIn();
    bench.refresh();
    QCOMPARE(counts, QList<qint64> { 1 });
    bench.unplug();
    bench.refresh();
    bench.plugIn();
    bench.refresh();
    QCOMPARE(counts, QList<qint64>({ 1, 0, 1 }));
}

void AdapterStorageTest::takesAReturnFromUnknownPowerForAConnection()
{
    Connected bench;
    bench.refreshTimes(2);
    bench.remove("ExternalConnected");
    bench.refresh();
    QCOMPARE(bench.provider->adapterConnectedCounter(), 3);
    std::ignore = bench.log.take();
    bench.plugIn();
    bench.refresh();
    QCOMPARE(bench.log.take(), QStringList(deleting));
    QCOMPARE(bench.provider->adapterConnectedCounter(), 1);
}

void AdapterStorageTest::keepsTheCounterOnBatteryPower()
{
    Connected bench;
    bench.refresh();
    bench.unplug();
    bench.store.writes.clear();
    bench.refreshTimes(3);
    QCOMPARE(bench.provider->adapterConnectedCounter(), 2);
    QCOMPARE(bench.store.writes, QStringList());
}

void AdapterStorageTest::asksForTheStoredDataOnlyOnExternalPower()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.refresh();
    QCOMPARE(bench.storedDataAccesses, 0);
    bench.plugIn();
    bench.refresh();
    QVERIFY(bench.storedDataAccesses > 0);
}

void AdapterStorageTest::copiesInEarlyRefreshesWithoutCountingThem()
{
    ProviderBench bench;
    bench.plugIn();
    bench.setAdapter({ { u"Watts"_s, 15 } });
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.provider->adapterConnectedCounter(), 1);
    // The contract of a USB-C port is made in many small steps.
    for (int i = 0; i < 10; ++i)
        bench.provider->updateEarly();
    QCOMPARE(bench.provider->adapterConnectedCounter(), 1);
    bench.setAdapter({ { u"Watts"_s, 65 } });
    bench.provider->updateEarly();
    QCOMPARE(bench.storedData.adapterWatts(), 65);
}

FERRIN_TEST(QCoreApplication, AdapterStorageTest)
#include "test_adapterstorage.moc"
