// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/sources/registrybench.h"
#include "tests/support/lastwords.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::FakeRegistry;
using test::LogCapture;
using Bench = test::RegistryBench;
using Key = SmartBatteryKey;

namespace {

constexpr int keyCount = static_cast<int>(smartBatteryKeyCount);

} // namespace

class BatteryDataFromIOServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsItsServiceOnce();
    void answersNothingWithoutItsService();
    void neverFindsAServiceThatShowsUpLater();
    void readsAPropertyInItsType_data();
    void readsAPropertyInItsType();
    void treatsAnUnexpectedTypeAsMissing_data();
    void treatsAnUnexpectedTypeAsMissing();
    void answersNothingForAMissingProperty();
    void readsTheRegistryAfreshAtEachLookUp();
    void answersARawPropertyAsItStands();
    void convertsTheTemperature();
    void splitsTheTimeRemaining_data();
    void splitsTheTimeRemaining();
    void roundsTheChargeDown_data();
    void roundsTheChargeDown();
    void hasNoChargeWithoutBothCapacities();
    void stopsTheProcessOverAChargeThatIsNoInteger_data();
    void stopsTheProcessOverAChargeThatIsNoInteger();
    void closesItsService();
    void saysThatItCouldNotClose();
    void hasNothingToCloseWithoutAService();
};

void BatteryDataFromIOServiceTest::findsItsServiceOnce()
{
    LogCapture log;
    FakeRegistry registry;
    registry.properties = { { u"CycleCount"_s, 12 } };
    const BatteryDataFromIOService reader(registry);
    QCOMPARE(log.take(),
             QStringList(u"info: Connection to AppleSmartBattery service successful"_s));
    QCOMPARE(BatteryDataFromIOService::IOSERVICE_BATTERY, u"AppleSmartBattery"_s);
    QCOMPARE(reader.service(), FakeRegistry::handle);
    QVERIFY(reader.connected());

    QCOMPARE(reader.value(Key::cycleCount), qint64(12));
    QCOMPARE(reader.value(Key::cycleCount), qint64(12));
    QCOMPARE(registry.searches, QStringList(u"AppleSmartBattery"_s));
}

void BatteryDataFromIOServiceTest::answersNothingWithoutItsService()
{
    LogCapture log;
    FakeRegistry registry;
    registry.serviceName.reset();
    const BatteryDataFromIOService reader(registry);
    QCOMPARE(log.take(), QStringList(u"error: AppleSmartBattery service not found"_s));
    QCOMPARE(reader.service(), 0U);
    QVERIFY(!reader.connected());
    for (int key = 0; key < keyCount; ++key)
        QVERIFY(!reader.value(static_cast<Key>(key)).isValid());
    QVERIFY(registry.lookups.isEmpty());
}

void BatteryDataFromIOServiceTest::neverFindsAServiceThatShowsUpLater()
{
    LogCapture log;
    FakeRegistry registry;
    registry.serviceName.reset();
    registry.properties = { { u"CycleCount"_s, 12 } };
    const BatteryDataFromIOService reader(registry);
    std::ignore = log.take();
    registry.serviceName = u"AppleSmartBattery"_s;
    QVERIFY(!reader.value(Key::cycleCount).isValid());
    QCOMPARE(registry.searches.size(), 1);
}

void BatteryDataFromIOServiceTest::readsAPropertyInItsType_data()
{
    QTest::addColumn<Key>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("answered");
    const auto row = [](Key key, const QString &name, const QVariant &stored, const QVariant &out) {
        QTest::newRow(qPrintable(name)) << key << name << stored << out;
    };
    row(Key::externalConnected, u"ExternalConnected"_s, true, true);
    row(Key::isCharging, u"IsCharging"_s, false, false);
    row(Key::fullyCharged, u"FullyCharged"_s, true, true);
    row(Key::appleRawCurrentCapacity, u"AppleRawCurrentCapacity"_s, 4000, qint64(4000));
    row(Key::appleRawMaxCapacity, u"AppleRawMaxCapacity"_s, 6000U, qint64(6000));
    row(Key::currentCapacity, u"CurrentCapacity"_s, qint64(87), qint64(87));
    row(Key::cycleCount, u"CycleCount"_s, 0, qint64(0));
    row(Key::designCapacity, u"DesignCapacity"_s, quint64(6500), qint64(6500));
    row(Key::designCycleCount9C, u"DesignCycleCount9C"_s, 1000, qint64(1000));
    row(Key::maxCapacity, u"MaxCapacity"_s, 100.0, qint64(100));
    row(Key::temperature, u"Temperature"_s, 3050, 3050.0F);
    row(Key::timeRemaining, u"TimeRemaining"_s, -3, qint64(-3));
    row(Key::avgTimeToEmpty, u"AvgTimeToEmpty"_s, 200, qint64(200));
    row(Key::avgTimeToFull, u"AvgTimeToFull"_s, 65535, qint64(65535));
    row(Key::serial, u"Serial"_s, u"D86"_s, u"D86"_s);
}

void BatteryDataFromIOServiceTest::readsAPropertyInItsType()
{
    QFETCH(const Key, key);
    QFETCH(const QString, name);
    QFETCH(const QVariant, stored);
    QFETCH(const QVariant, answered);
    const Bench bench({ { name, stored } });
    const QVariant value = bench.value(key);
    QCOMPARE(value, answered);
    QCOMPARE(value.metaType(), answered.metaType());
    QCOMPARE(bench.registry.lookups, QStringList(name));
}

void BatteryDataFromIOServiceTest::treatsAnUnexpectedTypeAsMissing_data()
{
    QTest::addColumn<Key>("key");
    QTest::addColumn<QVariant>("stored");
    const auto rows = [](int from, int to, const QVariantList &stored) {
        for (int key = from; key <= to; ++key) {
            const QString &name = rawValue(static_cast<Key>(key));
            for (const QVariant &value : stored) {
                QTest::addRow("%s: %s", qPrintable(name), value.typeName())
                    << static_cast<Key>(key) << value;
            }
        }
    };
    rows(0, 2, { 1, u"Yes"_s, QVariantMap() });
    rows(3, 9, { true, u"12"_s, 12.5, QVariantMap() });
    rows(10, 12, { true, u"3050"_s });
    rows(13, 15, { true, u"12"_s, 12.5 });
    rows(16, 17, { true, u"12"_s, 12.5 });
    rows(19, 19, { 12, true, QByteArray("D86") });
}

void BatteryDataFromIOServiceTest::treatsAnUnexpectedTypeAsMissing()
{
    QFETCH(const Key, key);
    QFETCH(const QVariant, stored);
    const QVariantMap properties { { rawValue(key), stored },
                                   { u"Temperature"_s, stored },
                                   { u"TimeRemaining"_s, stored } };
    QVERIFY(!Bench(properties).value(key).isValid());
}

void BatteryDataFromIOServiceTest::answersNothingForAMissingProperty()
{
    const Bench bench({});
    for (int key = 0; key < keyCount; ++key)
        QVERIFY(!bench.value(static_cast<Key>(key)).isValid());
}

void BatteryDataFromIOServiceTest::readsTheRegistryAfreshAtEachLookUp()
{
    Bench bench({ { u"CycleCount"_s, 12 } });
    QCOMPARE(bench.value(Key::cycleCount), qint64(12));
    bench.registry.properties.insert(u"CycleCount"_s, 13);
    QCOMPARE(bench.value(Key::cycleCount), qint64(13));
    bench.registry.properties.clear();
    QVERIFY(!bench.value(Key::cycleCount).isValid());
}

void BatteryDataFromIOServiceTest::answersARawPropertyAsItStands()
{
    const Bench bench({ { u"CycleCount"_s, u"many"_s }, { u"Charge"_s, 12 } });
    QCOMPARE(bench.reader->property(Key::cycleCount), u"many"_s);
    QCOMPARE(bench.reader->property(Key::charge), 12);
    QVERIFY(!bench.reader->property(Key::serial).isValid());
}

void BatteryDataFromIOServiceTest::convertsTheTemperature()
{
    const Bench bench({ { u"Temperature"_s, 3050 } });
    QCOMPARE(bench.value(Key::temperature), QVariant(3050.0F));
    QCOMPARE(bench.value(Key::temperatureInC).metaType(), QMetaType::fromType<float>());
    QCOMPARE(bench.value(Key::temperatureInC), QVariant(30.5F));
    QCOMPARE(bench.value(Key::temperatureInF).metaType(), QMetaType::fromType<float>());
    QCOMPARE(bench.value(Key::temperatureInF).toFloat(), 86.9F);
    QCOMPARE(bench.registry.lookups, QStringList(5, u"Temperature"_s));
}

void BatteryDataFromIOServiceTest::splitsTheTimeRemaining_data()
{
    QTest::addColumn<int>("remaining");
    QTest::addColumn<qint64>("hours");
    QTest::addColumn<qint64>("minutes");
    QTest::newRow("over two hours") << 125 << qint64(2) << qint64(5);
    QTest::newRow("under an hour") << 59 << qint64(0) << qint64(59);
    QTest::newRow("negative") << -125 << qint64(-2) << qint64(-5);
}

void BatteryDataFromIOServiceTest::splitsTheTimeRemaining()
{
    QFETCH(const int, remaining);
    const Bench bench({ { u"TimeRemaining"_s, remaining } });
    QTEST(bench.value(Key::timeRemainingInHs).value<qint64>(), "hours");
    QTEST(bench.value(Key::timeRemainingInM).value<qint64>(), "minutes");
    QCOMPARE(bench.value(Key::timeRemainingInHs).metaType(), QMetaType::fromType<qint64>());
}

void BatteryDataFromIOServiceTest::roundsTheChargeDown_data()
{
    QTest::addColumn<qint64>("current");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("charge");
    const auto row = [](const char *name, qint64 current, qint64 maximum, qint64 charge) {
        QTest::newRow(name) << current << maximum << charge;
    };
    row("with a fraction", 4123, 4321, 95);
    row("full", 4321, 4321, 100);
    row("empty", 0, 4321, 0);
    row("percent", 87, 100, 87);
    row("over full", 4400, 4321, 101);
    row("below zero, toward minus infinity", -1, 4321, -1);
    // In 64-bit arithmetic the product would overflow, in double precision it would be 99.
    row("in single precision", 9223372036854775000, 9223372036854775807, 100);
    row("rounded to single precision before it is rounded down", 99999999, 100000000, 100);
}

void BatteryDataFromIOServiceTest::roundsTheChargeDown()
{
    QFETCH(const qint64, current);
    QFETCH(const qint64, maximum);
    const Bench bench({ { u"CurrentCapacity"_s, current }, { u"MaxCapacity"_s, maximum } });
    QTEST(bench.value(Key::charge).value<qint64>(), "charge");
    QCOMPARE(bench.value(Key::charge).metaType(), QMetaType::fromType<qint64>());
    QCOMPARE(bench.registry.lookups.mid(0, 2),
             QStringList({ u"CurrentCapacity"_s, u"MaxCapacity"_s }));
}

void BatteryDataFromIOServiceTest::hasNoChargeWithoutBothCapacities()
{
    const QString current = u"CurrentCapacity"_s;
    const QString maximum = u"MaxCapacity"_s;
    const QList<QVariantMap> lacking {
        { { current, 87 } },
        { { maximum, 100 } },
        { { maximum, 0 } },
        { { current, u"87"_s }, { maximum, 100 } },
        { { current, 87 }, { maximum, true } },
    };
    for (const QVariantMap &properties : lacking)
        QVERIFY(!Bench(properties).value(Key::charge).isValid());
}

void BatteryDataFromIOServiceTest::stopsTheProcessOverAChargeThatIsNoInteger_data()
{
    QTest::addColumn<qint64>("current");
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<QString>("words");
    const qint64 huge = 9223372036854775807;
    QTest::newRow("of nothing") << qint64(50) << qint64(0) << u"Not a 64-bit integer: inf"_s;
    QTest::newRow("nothing of nothing") << qint64(0) << qint64(0) << u"Not a 64-bit integer: nan"_s;
    QTest::newRow("beyond 64 bits") << huge << qint64(1) << u"Not a 64-bit integer: 9.22337e+20"_s;
}

void BatteryDataFromIOServiceTest::stopsTheProcessOverAChargeThatIsNoInteger()
{
    QFETCH(const qint64, current);
    QFETCH(const qint64, maximum);
    QFETCH(const QString, words);
    const Bench bench({ { u"CurrentCapacity"_s, current }, { u"MaxCapacity"_s, maximum } });
    QCOMPARE(
        test::lastWords([&bench] { std::ignore = bench.value(Key::charge); }).value_or(QString()),
        words);
}

void BatteryDataFromIOServiceTest::closesItsService()
{
    Bench bench({ { u"CycleCount"_s, 12 } });
    LogCapture log;
    QCOMPARE(bench.reader->close(), 0);
    QCOMPARE(log.take(), QStringList(u"info: AppleSmartBattery service closed correctly"_s));
    QCOMPARE(bench.registry.released, QList<RegistryService::Handle> { FakeRegistry::handle });
    QCOMPARE(bench.reader->service(), 0U);
    QVERIFY(!bench.reader->connected());
    QVERIFY(!bench.value(Key::cycleCount).isValid());

    QCOMPARE(bench.reader->close(), 0);
    QCOMPARE(bench.registry.released.size(), 1);
}

void BatteryDataFromIOServiceTest::saysThatItCouldNotClose()
{
    Bench bench({ { u"CycleCount"_s, 12 } });
    bench.registry.releaseResult = 5;
    LogCapture log;
    QCOMPARE(bench.reader->close(), 5);
    QCOMPARE(log.take(), QStringList(u"error: AppleSmartBattery service failed to close"_s));
    QCOMPARE(bench.reader->service(), 0U);
    QVERIFY(!bench.reader->connected());
    QVERIFY(!bench.value(Key::cycleCount).isValid());
}

void BatteryDataFromIOServiceTest::hasNothingToCloseWithoutAService()
{
    LogCapture log;
    FakeRegistry registry;
    registry.serviceName.reset();
    registry.releaseResult = 5;
    BatteryDataFromIOService reader(registry);
    std::ignore = log.take();
    QCOMPARE(reader.close(), 0);
    QVERIFY(registry.released.isEmpty());
    QVERIFY(!reader.connected());
}

FERRIN_TEST(QCoreApplication, BatteryDataFromIOServiceTest)
#include "test_batterydatafromioservice.moc"
