// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/breakablelaptop.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <random>
#include <thread>

using namespace ferrin;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using namespace test;

/// A sysfs that changes arbitrarily often and fast: no figure is ever implausible, and the next
/// reading after the changes is right.
class ChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void livesThroughASupplyThatGoesAwayAndReturns();
    void isRightAfterTenThousandChangesInTheMiddleOfReads();
    void readsSixtyFourSupplies();
    void staysSaneOnAnyTextInAnyAttribute();
};

void ChangesTest::livesThroughASupplyThatGoesAwayAndReturns()
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

void ChangesTest::isRightAfterTenThousandChangesInTheMiddleOfReads()
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

void ChangesTest::readsSixtyFourSupplies()
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

void ChangesTest::staysSaneOnAnyTextInAnyAttribute()
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
        // A supply without a type would never be read again.
        if (round % 50 == 0)
            makeLaptop(laptop.sysfs);
        laptop.pass(std::chrono::seconds(random() % 40));
        expectSanity(laptop);
    }
}

FERRIN_TEST(QCoreApplication, ChangesTest)
#include "test_changes.moc"
