// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/batterydatafromiops.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::FakePowerSources;
using test::LogCapture;

namespace {

const QString nullInfo = u"error: IOPSCopyPowerSourcesInfo returned NULL"_s;
const QString nullList = u"error: IOPSCopyPowerSourcesList returned NULL"_s;
const QString emptyList
    = u"error: IOPSCopyPowerSourcesList returned an empty array of power sources"_s;
const QString nullDescription = u"error: IOPSGetPowerSourceDescription returned NULL"_s;
const QString success = u"info: Connection to IOPowerSources successful"_s;

QVariantMap ups()
{
    return { { u"Type"_s, u"UPS"_s },
             { u"Time to Empty"_s, 11 },
             { u"Time to Full Charge"_s, 12 } };
}

} // namespace

class BatteryDataFromIOPSTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutADescription();
    void tellsOfItsFirstSuccessOnce();
    void tellsOfASuccessThatComesLate();
    void saysWhatFailed_data();
    void saysWhatFailed();
    void answersFromTheLastGoodDescription();
    void passesOverAUps();
    void takesTheFirstOfTwoBatteries();
    void stopsAtADescriptionThatIsNone_data();
    void stopsAtADescriptionThatIsNone();
    void passesOverADescriptionWithoutAType_data();
    void passesOverADescriptionWithoutAType();
    void staysSilentWithoutABattery();
    void answersNothingWithoutABattery();
    void answersMinusOneUnchanged();
    void answersZeroUnchanged();
    void answersEachEstimateUnderItsKey();
    void answersNothingForAMissingKey();
    void answersNothingForAnotherType_data();
    void answersNothingForAnotherType();
    void readsAnewForEveryEstimate();
};

void BatteryDataFromIOPSTest::startsWithoutADescription()
{
    FakePowerSources service;
    const BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.batteryInfo(), std::nullopt);
    QVERIFY(reader.entryFlag());
    QCOMPARE(service.snapshots, 0);
}

void BatteryDataFromIOPSTest::tellsOfItsFirstSuccessOnce()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(90, 0) };
    BatteryDataFromIOPS reader(service);
    reader.refresh();
    QCOMPARE(log.take(), QStringList(success));
    QVERIFY(!reader.entryFlag());
    QCOMPARE(reader.batteryInfo(), FakePowerSources::battery(90, 0));

    reader.refresh();
    std::ignore = reader.timeEstimate(true);
    QCOMPARE(log.take(), QStringList());

    BatteryDataFromIOPS another(service);
    another.refresh();
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::tellsOfASuccessThatComesLate()
{
    LogCapture log;
    FakePowerSources service;
    BatteryDataFromIOPS reader(service);
    reader.refresh();
    service.descriptions = { ups() };
    reader.refresh();
    QVERIFY(reader.entryFlag());
    QCOMPARE(log.take(), QStringList(emptyList));

    service.descriptions = { ups(), FakePowerSources::battery(90, 0) };
    reader.refresh();
    QVERIFY(!reader.entryFlag());
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::saysWhatFailed_data()
{
    QTest::addColumn<bool>("hasSnapshot");
    QTest::addColumn<bool>("hasList");
    QTest::addColumn<QVariantList>("descriptions");
    QTest::addColumn<QString>("line");
    QTest::newRow("no snapshot") << false << true << QVariantList { ups() } << nullInfo;
    QTest::newRow("no list") << true << false << QVariantList { ups() } << nullList;
    QTest::newRow("no power sources") << true << true << QVariantList() << emptyList;
    QTest::newRow("no description") << true << true << QVariantList { {} } << nullDescription;
}

void BatteryDataFromIOPSTest::saysWhatFailed()
{
    QFETCH(const bool, hasSnapshot);
    QFETCH(const bool, hasList);
    QFETCH(const QVariantList, descriptions);
    QFETCH(const QString, line);
    LogCapture log;
    FakePowerSources service;
    service.hasSnapshot = hasSnapshot;
    service.hasList = hasList;
    service.descriptions = descriptions;
    BatteryDataFromIOPS reader(service);
    reader.refresh();
    QCOMPARE(log.take(), QStringList(line));
    QVERIFY(reader.entryFlag());
    QCOMPARE(reader.batteryInfo(), std::nullopt);
    QCOMPARE(reader.timeEstimate(true), std::nullopt);
    QCOMPARE(log.take(), QStringList(line));
}

void BatteryDataFromIOPSTest::answersFromTheLastGoodDescription()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(90, 45) };
    BatteryDataFromIOPS reader(service);
    reader.refresh();
    std::ignore = log.take();

    service.hasSnapshot = false;
    QCOMPARE(reader.timeEstimate(true), 90);
    service.hasSnapshot = true;
    service.hasList = false;
    QCOMPARE(reader.timeEstimate(false), 45);
    service.hasList = true;
    service.descriptions = {};
    QCOMPARE(reader.timeEstimate(true), 90);
    service.descriptions = { QVariant() };
    QCOMPARE(reader.timeEstimate(false), 45);
    QCOMPARE(log.take(), QStringList({ nullInfo, nullList, emptyList, nullDescription }));

    service.descriptions = { ups() };
    QCOMPARE(reader.timeEstimate(true), 90);
    service.descriptions = { FakePowerSources::battery(80, 0) };
    QCOMPARE(reader.timeEstimate(true), 80);
}

void BatteryDataFromIOPSTest::passesOverAUps()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { ups(), FakePowerSources::battery(90, 0) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), 90);
    QCOMPARE(log.take(), QStringList(success));
    QCOMPARE(service.described, QList<int>({ 0, 1 }));
}

void BatteryDataFromIOPSTest::takesTheFirstOfTwoBatteries()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(90, 0), FakePowerSources::battery(30, 0) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), 90);
    QCOMPARE(log.take(), QStringList(success));
    QCOMPARE(service.described, QList<int> { 0 });
}

void BatteryDataFromIOPSTest::stopsAtADescriptionThatIsNone_data()
{
    QTest::addColumn<QVariant>("description");
    QTest::newRow("null") << QVariant();
    QTest::newRow("a text") << QVariant(u"InternalBattery"_s);
    QTest::newRow("a list") << QVariant(QVariantList { u"Type"_s, u"InternalBattery"_s });
    QTest::newRow("keys that are not text")
        << QVariant::fromValue(QMap<int, QVariant> { { 1, u"InternalBattery"_s } });
}

void BatteryDataFromIOPSTest::stopsAtADescriptionThatIsNone()
{
    QFETCH(const QVariant, description);
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { description, FakePowerSources::battery(90, 0) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), std::nullopt);
    QCOMPARE(log.take(), QStringList(nullDescription));
    QCOMPARE(service.described, QList<int> { 0 });
    QCOMPARE(reader.batteryInfo(), std::nullopt);
}

void BatteryDataFromIOPSTest::passesOverADescriptionWithoutAType_data()
{
    QTest::addColumn<QVariantMap>("description");
    QTest::newRow("empty") << QVariantMap();
    QTest::newRow("no type") << QVariantMap { { u"Time to Empty"_s, 11 } };
    QTest::newRow("type is a number") << QVariantMap { { u"Type"_s, 1 } };
    QTest::newRow("type is data") << QVariantMap { { u"Type"_s, QByteArray("InternalBattery") } };
    QTest::newRow("other case") << QVariantMap { { u"Type"_s, u"internalbattery"_s } };
    QTest::newRow("longer") << QVariantMap { { u"Type"_s, u"InternalBattery2"_s } };
    QTest::newRow("key in other case") << QVariantMap { { u"type"_s, u"InternalBattery"_s } };
}

void BatteryDataFromIOPSTest::passesOverADescriptionWithoutAType()
{
    QFETCH(const QVariantMap, description);
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { description, FakePowerSources::battery(90, 0) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), 90);
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::staysSilentWithoutABattery()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { ups(), QVariantMap() };
    BatteryDataFromIOPS reader(service);
    reader.refresh();
    QCOMPARE(log.take(), QStringList());
    QVERIFY(reader.entryFlag());
    QCOMPARE(reader.batteryInfo(), std::nullopt);
}

void BatteryDataFromIOPSTest::answersNothingWithoutABattery()
{
    FakePowerSources service;
    service.descriptions = { ups() };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), std::nullopt);
    QCOMPARE(reader.timeEstimate(false), std::nullopt);
}

void BatteryDataFromIOPSTest::answersMinusOneUnchanged()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(-1, -1) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), -1);
    QCOMPARE(reader.timeEstimate(false), -1);
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::answersZeroUnchanged()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(0, 0) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), 0);
    QCOMPARE(reader.timeEstimate(false), 0);
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::answersEachEstimateUnderItsKey()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(90, 45) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), 90);
    QCOMPARE(reader.timeEstimate(false), 45);
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::answersNothingForAMissingKey()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions
        = { QVariantMap { { u"Type"_s, u"InternalBattery"_s }, { u"Time to Empty"_s, 90 } } };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(false), std::nullopt);
    QCOMPARE(reader.timeEstimate(true), 90);
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::answersNothingForAnotherType_data()
{
    QTest::addColumn<QVariant>("estimate");
    QTest::newRow("text") << QVariant(u"90"_s);
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("fraction") << QVariant(90.5);
    QTest::newRow("dictionary") << QVariant(QVariantMap());
}

void BatteryDataFromIOPSTest::answersNothingForAnotherType()
{
    QFETCH(const QVariant, estimate);
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(estimate, estimate) };
    BatteryDataFromIOPS reader(service);
    QCOMPARE(reader.timeEstimate(true), std::nullopt);
    QCOMPARE(reader.timeEstimate(false), std::nullopt);
    QCOMPARE(log.take(), QStringList(success));
}

void BatteryDataFromIOPSTest::readsAnewForEveryEstimate()
{
    LogCapture log;
    FakePowerSources service;
    service.descriptions = { FakePowerSources::battery(90, 45) };
    BatteryDataFromIOPS reader(service);
    std::ignore = reader.timeEstimate(false);
    QCOMPARE(service.snapshots, 1);
    service.descriptions = { FakePowerSources::battery(89, 44) };
    QCOMPARE(reader.timeEstimate(true), 89);
    QCOMPARE(service.snapshots, 2);
    QCOMPARE(log.take(), QStringList(success));
}

FERRIN_TEST(QCoreApplication, BatteryDataFromIOPSTest)
#include "test_batterydatafromiops.moc"
