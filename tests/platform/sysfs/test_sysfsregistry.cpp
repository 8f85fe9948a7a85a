// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QHash>
#include <QTest>

#include <array>
#include <cstdlib>
#include <sys/inotify.h>
#include <unistd.h>

using namespace ferrin;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using test::Laptop;

class SysfsRegistryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsOneServiceByName();
    void hasNoServiceWithoutABattery();
    void answersNothingToOtherHandlesAndKeys();
    void answersWithTheTypesThatAreExpected();
    void readsEachFileOnceForAllLookUpsOfATurn();
    void readsNothingElseOfAPeripheral();
    void showsOneMomentWithinATurnAndANewOneInTheNext();
    void readsAnewRightAfterAChange();
    void readsWithoutAnEventLoop();
    void hasTimesOnlyInTheirDirection();
    void hasNoTimeWhenHeldOnExternalPower();
    void tellsTheTimeAvailableWhileHeld();
    void isCalmWhileTheLoadJumps();
    void hasAClockOfFractionsOfASecond();
};

namespace {

const QStringList refreshKeys {
    u"CurrentCapacity"_s, u"MaxCapacity"_s,    u"AppleRawMaxCapacity"_s, u"ExternalConnected"_s,
    u"FullyCharged"_s,    u"IsCharging"_s,     u"AdapterDetails"_s,      u"AdapterDetails"_s,
    u"AdapterDetails"_s,  u"AdapterDetails"_s, u"AdapterDetails"_s,      u"TimeRemaining"_s,
    u"TimeRemaining"_s,
};

void makeLaptop(test::FakeSysfs &sysfs)
{
    sysfs.supply(u"BAT0"_s,
                 { { "type", "Battery" },
                   { "status", "Discharging" },
                   { "capacity", "50" },
                   { "energy_now", "25000000" },
                   { "energy_full", "50000000" },
                   { "energy_full_design", "55000000" },
                   { "power_now", "10000000" },
                   { "voltage_min_design", "10000000" },
                   { "cycle_count", "123" },
                   { "temp", "301" },
                   { "serial_number", "AB12" } });
    sysfs.supply(u"ucsi"_s,
                 { { "type", "USB" },
                   { "online", "0" },
                   { "usb_type", "[PD]" },
                   { "voltage_now", "20000000" },
                   { "current_now", "3000000" } });
}

/// How often each file below a folder is opened.
class OpenCounter
{
public:
    explicit OpenCounter(const QString &folder)
        : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QByteArray path = files.next().toUtf8();
            m_names.insert(::inotify_add_watch(m_descriptor, path.constData(), IN_OPEN),
                           QString::fromUtf8(path));
        }
    }
    ~OpenCounter() { ::close(m_descriptor); }

    QHash<QString, int> take()
    {
        QHash<QString, int> counts;
        alignas(inotify_event) std::array<char, 65536> events;
        for (;;) {
            const ssize_t size = ::read(m_descriptor, events.data(), events.size());
            if (size <= 0)
                return counts;
            for (ssize_t offset = 0; offset < size;) {
                const auto *event = reinterpret_cast<const inotify_event *>(events.data() + offset);
                ++counts[m_names.value(event->wd)];
                offset += static_cast<ssize_t>(sizeof(inotify_event)) + event->len;
            }
        }
    }

private:
    int m_descriptor;
    QHash<int, QString> m_names;
};

} // namespace

void SysfsRegistryTest::knowsOneServiceByName()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    SysfsRegistry &registry = laptop.registry();
    const auto matching = registry.serviceNameMatching(u"AppleSmartBattery"_s);
    const RegistryService::Handle handle = registry.matchingService(matching);
    QVERIFY(handle != 0);
    QCOMPARE(registry.release(handle), 0);
    QCOMPARE(registry.matchingService(registry.serviceNameMatching(u"AppleSmartBatter"_s)), 0U);
    QVERIFY(registry.release(0) != 0);
}

void SysfsRegistryTest::hasNoServiceWithoutABattery()
{
    Laptop laptop;
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    QCOMPARE(laptop.registry().matchingService({ u"AppleSmartBattery"_s }), 0U);
}

void SysfsRegistryTest::answersNothingToOtherHandlesAndKeys()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    QVERIFY(!laptop.registry().createProperty(0, u"CurrentCapacity"_s).isValid());
    QVERIFY(!laptop.registry().createProperty(7, u"CurrentCapacity"_s).isValid());
    for (const QString &key : { u""_s, u"currentcapacity"_s, u"Charge"_s, u"TemperatureinC"_s })
        QVERIFY(laptop.absent(key));
}

void SysfsRegistryTest::answersWithTheTypesThatAreExpected()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    for (const QString &key : { u"ExternalConnected"_s, u"IsCharging"_s, u"FullyCharged"_s })
        QCOMPARE(laptop.fresh(key).typeId(), int(QMetaType::Bool));
    for (const QString &key :
         { u"AppleRawCurrentCapacity"_s, u"AppleRawMaxCapacity"_s, u"CurrentCapacity"_s,
           u"CycleCount"_s, u"DesignCapacity"_s, u"DesignCycleCount9C"_s, u"MaxCapacity"_s,
           u"Temperature"_s, u"TimeRemaining"_s, u"AvgTimeToEmpty"_s })
        QCOMPARE(laptop.fresh(key).typeId(), int(QMetaType::LongLong));
    QCOMPARE(laptop.fresh(u"Serial"), QVariant(u"AB12"_s));
    QCOMPARE(laptop.fresh(u"Temperature").toInt(), 3010);
    QCOMPARE(laptop.fresh(u"CycleCount").toInt(), 123);
    QCOMPARE(laptop.fresh(u"DesignCapacity").toInt(), 5500);
    QCOMPARE(laptop.fresh(u"AppleRawCurrentCapacity").toInt(), 2500);
}

void SysfsRegistryTest::readsEachFileOnceForAllLookUpsOfATurn()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    laptop.sysfs.set(u"ucsi"_s, u"online"_s, "1");
    // The first look learns which batteries these are.
    static_cast<void>(laptop.fresh(u"CurrentCapacity"));
    OpenCounter counter(laptop.sysfs.path({}));
    for (int turn = 0; turn < 3; ++turn) {
        laptop.registry().expire();
        for (const QString &key : refreshKeys)
            static_cast<void>(laptop.said(key));
        const QHash<QString, int> counts = counter.take();
        QVERIFY(counts.size() >= 10);
        for (auto count = counts.begin(); count != counts.end(); ++count)
            QVERIFY2(count.value() == 1, qPrintable(count.key()));
        // A refresh does not read attributes that change slowly.
        for (const QString &file : counts.keys())
            QVERIFY(!file.endsWith("cycle_count"_L1) && !file.endsWith("full_design"_L1));
    }
}

void SysfsRegistryTest::readsNothingElseOfAPeripheral()
{
    Laptop laptop("lenovo-l21l4pd8-mouse");
    OpenCounter counter(laptop.sysfs.path(u"class/power_supply/hidpp_battery_0"_s));
    static_cast<void>(laptop.fresh(u"CurrentCapacity"));
    QStringList opened;
    for (const QString &file : counter.take().keys())
        opened.append(file.section(u'/', -1));
    opened.sort();
    QCOMPARE(opened, (QStringList { u"scope"_s, u"type"_s }));
}

void SysfsRegistryTest::showsOneMomentWithinATurnAndANewOneInTheNext()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 50);
    laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, "49");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Charging");
    QCOMPARE(laptop.said(u"IsCharging"), QVariant(false));
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 50);
    QCoreApplication::processEvents();
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 49);
    QCOMPARE(laptop.said(u"IsCharging"), QVariant(true));
}

void SysfsRegistryTest::readsAnewRightAfterAChange()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    for (const char *online : { "0", "1", "0", "1" }) {
        laptop.sysfs.set(u"ucsi"_s, u"online"_s, online);
        QCoreApplication::processEvents();
        QCOMPARE(laptop.said(u"ExternalConnected"), QVariant(*online == '1'));
    }
}

void SysfsRegistryTest::readsWithoutAnEventLoop()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 50);
    laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, "49");
    laptop.registry().expire();
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 49);
}

void SysfsRegistryTest::hasTimesOnlyInTheirDirection()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 150);
    QCOMPARE(laptop.said(u"AvgTimeToEmpty").toInt(), 150);
    QVERIFY(!laptop.said(u"AvgTimeToFull").isValid());
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Charging");
    laptop.sysfs.set(u"BAT0"_s, u"power_now"_s, "20000000");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 131);
    QCOMPARE(laptop.said(u"AvgTimeToFull").toInt(), 131);
    QVERIFY(!laptop.said(u"AvgTimeToEmpty").isValid());
}

void SysfsRegistryTest::hasNoTimeWhenHeldOnExternalPower()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    laptop.sysfs.set(u"ucsi"_s, u"online"_s, "1");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Not charging");
    QVERIFY(laptop.absent(u"TimeRemaining"));
}

void SysfsRegistryTest::tellsTheTimeAvailableWhileHeld()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    // 10 W: a percent of 50 Wh in three minutes.
    for (int percent = 50; percent > 30; --percent) {
        laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, QByteArray::number(percent));
        laptop.sysfs.set(u"BAT0"_s, u"energy_now"_s, QByteArray::number(percent * 500'000));
        laptop.pass(3min);
        QVERIFY(!laptop.absent(u"TimeRemaining"));
    }
    laptop.sysfs.set(u"ucsi"_s, u"online"_s, "1");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Not charging");
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QVERIFY(laptop.absent(u"AvgTimeToFull"));
    const int available = laptop.fresh(u"AvgTimeToEmpty").toInt();
    QVERIFY2(std::abs(available - 93) < 10, qPrintable(QString::number(available)));
}

void SysfsRegistryTest::isCalmWhileTheLoadJumps()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 150);
    laptop.pass(5s);
    laptop.sysfs.set(u"BAT0"_s, u"power_now"_s, "25000000");
    QVERIFY(laptop.fresh(u"TimeRemaining").toInt() > 145);
}

void SysfsRegistryTest::hasAClockOfFractionsOfASecond()
{
    // Both on a full second would be a coincidence of one in 10^18.
    QVERIFY(sleeplessClock() % 1s != 0s || sleeplessClock() % 1s != 0s);
}

FERRIN_TEST(QCoreApplication, SysfsRegistryTest)
#include "test_sysfsregistry.moc"
