// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <array>
#include <atomic>
#include <functional>
#include <random>
#include <thread>

using namespace ferrin;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using test::Laptop;

/// What a broken or changing sysfs may do: figures turn absent one by one, nothing else happens.
class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesOneFigureWithOneBrokenFile_data();
    void losesOneFigureWithOneBrokenFile();
    void livesWithEveryFileBroken_data();
    void livesWithEveryFileBroken();
    void livesWithoutThePowerSupplyClass();
    void takesNoNumberOutOfDamagedText_data();
    void takesNoNumberOutOfDamagedText();
    void livesThroughASupplyThatGoesAwayAndReturns();
    void isRightAfterTenThousandChangesInTheMiddleOfReads();
    void readsSixtyFourSupplies();
    void leaksNoFileWhateverItMeets();
    void staysSaneOnAnyTextInAnyAttribute();
};

namespace {
using Breaker = void (*)(test::FakeSysfs &, const QString &);

struct Fault
{
    const char *name;
    Breaker apply;
};

void replaceBy(test::FakeSysfs &sysfs, const QString &file, const QByteArray &text)
{
    sysfs.remove(file);
    sysfs.write(file, text);
}

constexpr std::array faults {
    Fault { "missing", [](test::FakeSysfs &sysfs, const QString &file) { sysfs.remove(file); } },
    Fault { "a directory",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeDirectory(file);
            } },
    Fault { "a link to nothing",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/nothing/there");
            } },
    Fault { "a link to itself",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, sysfs.path(file).toUtf8());
            } },
    Fault { "a pipe",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writePipe(file);
            } },
    // Address 0 of one's own memory cannot be read: the error is EIO.
    Fault { "an input/output error",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/proc/self/mem");
            } },
    // Opening the terminal of a process without one gives ENXIO, with one it gives silence.
    Fault { "a device that is gone",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/dev/tty");
            } },
    Fault { "empty",
            [](test::FakeSysfs &sysfs, const QString &file) { replaceBy(sysfs, file, ""); } },
    Fault { "not UTF-8",
            [](test::FakeSysfs &sysfs, const QString &file) {
                replaceBy(sysfs, file, "\xff\xfe\x80 5");
            } },
    Fault { "megabytes",
            [](test::FakeSysfs &sysfs, const QString &file) {
                replaceBy(sysfs, file, QByteArray(4 << 20, '9'));
            } },
    Fault { "endless",
            [](test::FakeSysfs &sysfs, const QString &file) {
                sysfs.remove(file);
                sysfs.writeLink(file, "/dev/zero");
            } },
};

const QString battery = u"class/power_supply/BAT0/"_s;

void makeLaptop(test::FakeSysfs &sysfs)
{
    sysfs.supply(u"BAT0"_s,
                 { { "type", "Battery" },
                   { "status", "Discharging" },
                   { "present", "1" },
                   { "capacity", "50" },
                   { "energy_now", "25000000" },
                   { "energy_full", "50000000" },
                   { "energy_full_design", "55000000" },
                   { "power_now", "10000000" },
                   { "voltage_min_design", "10000000" },
                   { "voltage_now", "11000000" },
                   { "cycle_count", "123" },
                   { "temp", "301" },
                   { "serial_number", "AB12" },
                   { "health", "Good" } });
    sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "0" } });
}

void expectTheLaptop(Laptop &laptop)
{
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.said(u"AppleRawMaxCapacity").toInt(), 5000);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 150);
    QCOMPARE(laptop.said(u"ExternalConnected"), QVariant(false));
}

void expectSanity(Laptop &laptop)
{
    const QVariant charge = laptop.fresh(u"CurrentCapacity");
    QVERIFY(!charge.isValid() || (charge.toInt() >= 0 && charge.toInt() <= 100));
    const QVariant maximum = laptop.said(u"MaxCapacity");
    QVERIFY(!maximum.isValid() || maximum.toInt() == 100);
    const QVariant minutes = laptop.said(u"TimeRemaining");
    QVERIFY(!minutes.isValid() || (minutes.toLongLong() >= 0 && minutes.toLongLong() <= 2880));
    const QVariant full = laptop.said(u"AppleRawMaxCapacity");
    QVERIFY(!full.isValid() || (full.toLongLong() >= 0 && full.toLongLong() <= 1'000'000));
    const QVariant degrees = laptop.said(u"Temperature");
    QVERIFY(!degrees.isValid() || (degrees.toInt() >= -4000 && degrees.toInt() <= 12'000));
    const QVariant cycles = laptop.said(u"CycleCount");
    QVERIFY(!cycles.isValid() || (cycles.toInt() > 0 && cycles.toInt() <= 10'000));
    const QVariantMap adapter = laptop.said(u"AdapterDetails").toMap();
    const QVariant watts = adapter.value(u"Watts"_s);
    QVERIFY(!watts.isValid() || (watts.toInt() > 0 && watts.toInt() <= 500));
}

qsizetype openFiles()
{
    return QDir(u"/proc/self/fd"_s)
        .entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

void addFaultRows()
{
    QTest::addColumn<int>("fault");
    for (int index = 0; index < static_cast<int>(faults.size()); ++index)
        QTest::newRow(faults[static_cast<std::size_t>(index)].name) << index;
}
} // namespace

void TestFaults::losesOneFigureWithOneBrokenFile_data()
{
    addFaultRows();
}

void TestFaults::losesOneFigureWithOneBrokenFile()
{
    QFETCH(int, fault);
    const auto breakFile = faults[static_cast<std::size_t>(fault)].apply;
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    breakFile(laptop.sysfs, battery + u"power_now"_s);
    breakFile(laptop.sysfs, battery + u"temp"_s);
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QVERIFY(laptop.absent(u"Temperature"));
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.said(u"CycleCount").toInt(), 123);
    breakFile(laptop.sysfs, battery + u"capacity"_s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    breakFile(laptop.sysfs, battery + u"energy_now"_s);
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    QVERIFY(!laptop.said(u"MaxCapacity").isValid());
    QCOMPARE(laptop.said(u"AppleRawMaxCapacity").toInt(), 5000);
}

void TestFaults::livesWithEveryFileBroken_data()
{
    addFaultRows();
}

void TestFaults::livesWithEveryFileBroken()
{
    QFETCH(int, fault);
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    const QDir folder(laptop.sysfs.path(battery));
    for (const QString &file : folder.entryList(QDir::Files)) {
        faults[static_cast<std::size_t>(fault)].apply(laptop.sysfs, battery + file);
        expectSanity(laptop);
    }
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    laptop.sysfs.removeSupply(u"BAT0"_s);
    makeLaptop(laptop.sysfs);
    expectTheLaptop(laptop);
}

void TestFaults::livesWithoutThePowerSupplyClass()
{
    Laptop laptop;
    laptop.sysfs.remove(u"class"_s);
    QCOMPARE(laptop.registry().matchingService({ u"AppleSmartBattery"_s }), 0U);
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    QVERIFY(laptop.absent(u"ExternalConnected"));
    laptop.sysfs.write(u"class/power_supply"_s, "a file in the place of the folder");
    QVERIFY(laptop.absent(u"CurrentCapacity"));
}

void TestFaults::takesNoNumberOutOfDamagedText_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : { "", " ", "-", "+50", "5 0", "50%", "50.0", "0x32", "fifty", "1e2",
                              "--5", "9223372036854775808", "-9223372036854775809",
                              "99999999999999999999999999", "\xff", "5\xff", "nan", "inf" })
        QTest::newRow(*text ? text : "empty") << QByteArray(text);
    QTest::newRow("a zero byte within") << QByteArray("5\0000", 3);
}

void TestFaults::takesNoNumberOutOfDamagedText()
{
    QFETCH(QByteArray, text);
    Laptop laptop;
    laptop.sysfs.supply(
        u"BAT0"_s, { { "type", "Battery" }, { "status", "Discharging" }, { "capacity", text } });
    QVERIFY(laptop.absent(u"CurrentCapacity"));
}

void TestFaults::livesThroughASupplyThatGoesAwayAndReturns()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    for (int round = 0; round < 100; ++round) {
        expectTheLaptop(laptop);
        laptop.sysfs.removeSupply(u"BAT0"_s);
        QVERIFY(laptop.absent(u"CurrentCapacity"));
        QVERIFY(laptop.absent(u"TimeRemaining"));
        laptop.pass(5s);
        makeLaptop(laptop.sysfs);
    }
}

void TestFaults::isRightAfterTenThousandChangesInTheMiddleOfReads()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    const QString folder = laptop.sysfs.path(u"class/power_supply"_s);
    std::atomic<int> changes = 0;
    std::thread hardware([&] {
        std::mt19937 random(20'240'607);
        const auto name = [&] { return folder + u"/BAT%1"_s.arg(random() % 6); };
        while (changes < 10'000) {
            const QString supply = name();
            switch (random() % 4) {
            case 0:
                QDir().mkpath(supply);
                QFile::copy(folder + u"/BAT0/type"_s, supply + u"/type"_s);
                QFile::copy(folder + u"/BAT0/energy_now"_s, supply + u"/energy_now"_s);
                break;
            case 1:
                QDir(supply).removeRecursively();
                break;
            case 2:
                QDir().rename(supply, name());
                break;
            case 3:
                QFile::remove(supply + u"/energy_now"_s);
                break;
            }
            ++changes;
        }
    });
    int reads = 0;
    while (changes < 10'000) {
        expectSanity(laptop);
        ++reads;
    }
    hardware.join();
    QVERIFY(reads > 0);
    QDir(folder).removeRecursively();
    makeLaptop(laptop.sysfs);
    laptop.pass(5s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.said(u"AppleRawMaxCapacity").toInt(), 5000);
}

void TestFaults::readsSixtyFourSupplies()
{
    Laptop laptop;
    for (int index = 0; index < 32; ++index) {
        laptop.sysfs.supply(u"BAT%1"_s.arg(index),
                            { { "type", "Battery" },
                              { "status", "Discharging" },
                              { "energy_now", index % 2 ? "1000000" : "3000000" },
                              { "energy_full", "4000000" },
                              { "power_now", "1000000" } });
        laptop.sysfs.supply(u"mouse%1"_s.arg(index),
                            { { "type", "Battery" }, { "scope", "Device" }, { "capacity", "3" } });
    }
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 120);
}

void TestFaults::leaksNoFileWhateverItMeets()
{
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    expectSanity(laptop);
    const qsizetype before = openFiles();
    for (const Fault &fault : faults) {
        fault.apply(laptop.sysfs, battery + u"capacity"_s);
        expectSanity(laptop);
    }
    laptop.sysfs.removeSupply(u"BAT0"_s);
    expectSanity(laptop);
    QCOMPARE(openFiles(), before);
}

void TestFaults::staysSaneOnAnyTextInAnyAttribute()
{
    static const QByteArrayList texts {
        "0",
        "1",
        "2",
        "-1",
        "5",
        "50",
        "100",
        "101",
        "106",
        "255",
        "1536",
        "65535",
        "3932100",
        "1000",
        "4200000",
        "11400000",
        "65535000",
        "25000000",
        "50000000",
        "-8597000",
        "648067200",
        "9223372036854775807",
        "-9223372036854775808",
        "99999999999999999999",
        "",
        " ",
        "\xff\xfe",
        "Charging",
        "Discharging",
        "Not charging",
        "Full",
        "Unknown",
        "Idle",
        "Battery",
        "Mains",
        "USB",
        "Wireless",
        "UPS",
        "Device",
        "System",
        "Critical",
        "C [PD] PD_PPS",
        "[",
        "]",
        "[]",
    };
    static const QStringList attributes {
        u"type"_s,
        u"scope"_s,
        u"present"_s,
        u"status"_s,
        u"capacity"_s,
        u"capacity_level"_s,
        u"energy_now"_s,
        u"energy_full"_s,
        u"energy_full_design"_s,
        u"power_now"_s,
        u"charge_now"_s,
        u"charge_full"_s,
        u"charge_full_design"_s,
        u"current_now"_s,
        u"voltage_now"_s,
        u"voltage_min_design"_s,
        u"time_to_empty_now"_s,
        u"time_to_empty_avg"_s,
        u"time_to_full_now"_s,
        u"time_to_full_avg"_s,
        u"cycle_count"_s,
        u"temp"_s,
        u"online"_s,
        u"voltage_max"_s,
        u"current_max"_s,
        u"input_power_limit"_s,
        u"usb_type"_s,
        u"model_name"_s,
    };
    std::mt19937 random(7);
    const auto any = [&random](const auto &list) {
        return list.at(static_cast<qsizetype>(random() % static_cast<std::size_t>(list.size())));
    };
    Laptop laptop;
    makeLaptop(laptop.sysfs);
    for (int round = 0; round < 10'000 && !QTest::currentTestFailed(); ++round) {
        laptop.sysfs.set(any(QStringList { u"BAT0"_s, u"BAT1"_s, u"AC"_s }), any(attributes),
                         any(texts));
        // A supply that lost its type would end the game.
        if (round % 50 == 0)
            makeLaptop(laptop.sysfs);
        laptop.pass(std::chrono::seconds(random() % 40));
        expectSanity(laptop);
    }
}

QTEST_GUILESS_MAIN(TestFaults)
#include "test_faults.moc"
