// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/pack.h"
#include "platform/linux/power/sysfs/supplyreader.h"
#include "platform/linux/power/sysfs/sysfsregistry.h"
#include "tests/support/fakesysfs.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>

#include <algorithm>

using namespace ferrin;
using namespace Qt::StringLiterals;

/// Real machines against expected/sysfs.json, which was written by hand from the records. A figure
/// that is missing there must be absent.
class MachinesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void saysWhatACarefulPersonSays_data();
    void saysWhatACarefulPersonSays();
    void knowsTheHealthOfThePackThatNeedsItMost_data() { saysWhatACarefulPersonSays_data(); }
    void knowsTheHealthOfThePackThatNeedsItMost();
    void hasAnExpectationForEveryCompleteMachine();
    void findsNoServiceWithoutASystemBattery_data();
    void findsNoServiceWithoutASystemBattery();
    void staysSaneOnEveryRecord_data();
    void staysSaneOnEveryRecord();

private:
    QJsonObject m_expected;
};

namespace {

const QStringList figures {
    u"CurrentCapacity"_s,   u"AppleRawMaxCapacity"_s, u"DesignCapacity"_s, u"CycleCount"_s,
    u"ExternalConnected"_s, u"IsCharging"_s,          u"FullyCharged"_s,   u"TimeRemaining"_s,
    u"Temperature"_s,       u"AdapterDetails"_s,
};

QVariant plain(const QVariant &value)
{
    // JSON has one type of number and no maps of variants.
    return QJsonValue::fromVariant(value).toVariant();
}

RegistryService::Handle service(SysfsRegistry &registry)
{
    return registry.matchingService(registry.serviceNameMatching(u"AppleSmartBattery"_s));
}

} // namespace

void MachinesTest::initTestCase()
{
    QFile file(QStringLiteral(FERRIN_TEST_DATA "/machines/expected/sysfs.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QJsonParseError error;
    m_expected = QJsonDocument::fromJson(file.readAll(), &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QVERIFY(m_expected.size() > 50);
}

void MachinesTest::saysWhatACarefulPersonSays_data()
{
    QTest::addColumn<QString>("machine");
    for (const QString &machine : m_expected.keys())
        QTest::newRow(qPrintable(machine)) << machine;
}

void MachinesTest::saysWhatACarefulPersonSays()
{
    QFETCH(QString, machine);
    const QJsonObject expected = m_expected.value(machine).toObject();
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(machine));
    SysfsRegistry registry({ sysfs.root(), {} });
    const RegistryService::Handle handle = service(registry);
    QVERIFY(handle != 0);
    for (const QString &figure : figures) {
        const QVariant said = plain(registry.createProperty(handle, figure));
        const QVariant wanted = expected.value(figure).toVariant();
        if (expected.contains(figure))
            QVERIFY2(
                said == wanted,
                qPrintable(u"%1 is %2, not %3"_s.arg(figure, said.toString(), wanted.toString())));
        else
            QVERIFY2(said.isNull(), qPrintable(u"%1 is %2"_s.arg(figure, said.toString())));
    }
    QCOMPARE(registry.createProperty(handle, u"MaxCapacity"_s).toInt(),
             expected.contains("CurrentCapacity"_L1) ? 100 : 0);
    QCOMPARE(registry.createProperty(handle, u"DesignCycleCount9C"_s).toInt(), 300);
    // The records' serial numbers are masked with zeros, which mean that there is none.
    QVERIFY(!registry.createProperty(handle, u"Serial"_s).isValid());
}

void MachinesTest::knowsTheHealthOfThePackThatNeedsItMost()
{
    QFETCH(QString, machine);
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(machine));
    const SupplyReader reader(sysfs.root());
    const std::vector<BatterySupply> batteries = reader.read().batteries;
    const std::vector<BatteryRecord> records = reader.readRecords(batteries);
    std::optional<int> least;
    for (std::size_t index = 0; index < batteries.size(); ++index) {
        if (const auto health = healthPercent(batteries[index], records[index]))
            least = std::min(least.value_or(*health), *health);
    }
    QCOMPARE(least.value_or(-1), m_expected.value(machine).toObject().value("health"_L1).toInt(-1));
}

void MachinesTest::hasAnExpectationForEveryCompleteMachine()
{
    int complete = 0;
    for (const QString &machine : test::FakeSysfs::recordNames()) {
        const QJsonObject record = test::FakeSysfs::record(machine);
        if (record.value("completeness"_L1).toString() != "full"_L1)
            continue;
        ++complete;
        QVERIFY2(m_expected.contains(machine), qPrintable(machine));
    }
    QVERIFY(complete >= 37);
}

void MachinesTest::findsNoServiceWithoutASystemBattery_data()
{
    QTest::addColumn<QString>("machine");
    for (const char *machine :
         { "chromebook-cros-ucsi-pps", "dell-xps13-ucsi-idle", "desktop-no-battery",
           "logitech-m510-mouse", "olimex-lime2-no-battery", "thinkpad-t480s-ucsi" })
        QTest::newRow(machine) << QString::fromLatin1(machine);
}

void MachinesTest::findsNoServiceWithoutASystemBattery()
{
    QFETCH(QString, machine);
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(machine));
    SysfsRegistry registry({ sysfs.root(), {} });
    QCOMPARE(service(registry), 0U);
}

void MachinesTest::staysSaneOnEveryRecord_data()
{
    QTest::addColumn<QString>("machine");
    for (const QString &machine : test::FakeSysfs::recordNames())
        QTest::newRow(qPrintable(machine)) << machine;
}

void MachinesTest::staysSaneOnEveryRecord()
{
    QFETCH(QString, machine);
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(machine));
    SysfsRegistry registry({ sysfs.root(), {} });
    for (int refresh = 0; refresh < 3; ++refresh, registry.expire()) {
        const QVariant charge = registry.createProperty(1, u"CurrentCapacity"_s);
        QVERIFY(!charge.isValid() || (charge.toInt() >= 0 && charge.toInt() <= 100));
        QCOMPARE(registry.createProperty(1, u"MaxCapacity"_s).isValid(), charge.isValid());
        const QVariant minutes = registry.createProperty(1, u"TimeRemaining"_s);
        QVERIFY(!minutes.isValid() || (minutes.toInt() >= 0 && minutes.toInt() <= 48 * 60));
        const QVariant full = registry.createProperty(1, u"AppleRawMaxCapacity"_s);
        QVERIFY(!full.isValid() || (full.toInt() > 0 && full.toInt() < 100'000));
    }
}

FERRIN_TEST(QCoreApplication, MachinesTest)
#include "test_machines.moc"
