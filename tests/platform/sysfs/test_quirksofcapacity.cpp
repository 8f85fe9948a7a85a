// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Oddities of real machines in capacities and cycle counts, one test for each;
/// tests/machines/README.md describes the machines.
class QuirksOfCapacityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // unit families
    void readsAMachineOfChargesAndOneOfEnergies();
    void readsBothFamiliesAndNone();
    void takesEnergyBesideACurrent();
    void derivesTheRestWhereChargeNowIsMissing();
    void convertsByTheDesignVoltageSoThatTheDesignStandsStill();
    // cycle counts
    void hasNoCycleCountAtZeroAtSaturationAndWithoutTheFile();
    void dropsCycleCountsInAnotherUnit();
    void passesOnACountOfEightBits();
    // full and design
    void acceptsAFullChargeAboveTheDesign();
    void acceptsAFullChargeThatIsTheDesignForEver();
    // sentinels and dirty text
    void dropsTemperaturesBeyondReason();
    void dropsASaturatedGauge();
    void ignoresADesignVoltageOfOneMillivolt();
    void hasNoChargeWhereWhatIsLeftIsFarAboveFull();
};

void QuirksOfCapacityTest::readsAMachineOfChargesAndOneOfEnergies()
{
    Laptop charges("framework13-frangwa");
    QCOMPARE(charges.fresh(u"AppleRawMaxCapacity").toInt(), 3992);
    QCOMPARE(charges.fresh(u"CurrentCapacity").toInt(), 99);
    Laptop energies("apple-mbp-t2-a2251");
    QCOMPARE(energies.fresh(u"AppleRawMaxCapacity").toInt(), 3468);
    QCOMPARE(energies.fresh(u"CurrentCapacity").toInt(), 85);
}

void QuirksOfCapacityTest::readsBothFamiliesAndNone()
{
    Laptop both("chromebook-limozeen-sbs");
    QCOMPARE(both.fresh(u"AppleRawMaxCapacity").toInt(), 3555);
    QCOMPARE(both.fresh(u"AppleRawCurrentCapacity").toInt(), 3451);
    Laptop none("olimex-axp20x-battery");
    QCOMPARE(none.fresh(u"CurrentCapacity").toInt(), 98);
    QVERIFY(none.absent(u"AppleRawMaxCapacity"));
    Laptop silent("ayn-odin2-qcom");
    QVERIFY(silent.absent(u"CurrentCapacity"));
    QVERIFY(silent.absent(u"MaxCapacity"));
}

void QuirksOfCapacityTest::takesEnergyBesideACurrent()
{
    Laptop laptop("asus-f5-2008-mixed");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Discharging");
    // 43.142 Wh at 0.693 A × 12.51 V = 8.669 W.
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 298);
}

void QuirksOfCapacityTest::derivesTheRestWhereChargeNowIsMissing()
{
    Laptop laptop("pinebookpro-cw2015");
    QCOMPARE(laptop.fresh(u"AppleRawCurrentCapacity").toInt(), 9408);
    Laptop designOnly("pine64-pinephone-keyboard");
    QCOMPARE(designOnly.fresh(u"CurrentCapacity").toInt(), 43);
    QVERIFY(designOnly.absent(u"AppleRawMaxCapacity"));
}

void QuirksOfCapacityTest::convertsByTheDesignVoltageSoThatTheDesignStandsStill()
{
    Laptop laptop("asus-ux32vd");
    QCOMPARE(laptop.fresh(u"DesignCapacity").toInt(), 6168);
    laptop.sysfs.set(u"BAT0"_s, u"voltage_now"_s, "6900000");
    QCOMPARE(laptop.fresh(u"DesignCapacity").toInt(), 6168);
}

void QuirksOfCapacityTest::hasNoCycleCountAtZeroAtSaturationAndWithoutTheFile()
{
    Laptop zero("asus-ux32vd");
    QVERIFY(zero.absent(u"CycleCount"));
    Laptop saturated("openmoko-neo-bq27000-uncalibrated");
    QVERIFY(saturated.absent(u"CycleCount"));
    Laptop none("hp-pavilion-power15-tlp446");
    QVERIFY(none.absent(u"CycleCount"));
}

void QuirksOfCapacityTest::dropsCycleCountsInAnotherUnit()
{
    Laptop laptop("gpd-pocket-max170xx");
    QVERIFY(laptop.absent(u"CycleCount"));
}

void QuirksOfCapacityTest::passesOnACountOfEightBits()
{
    Laptop laptop("framework13-7040-cycles-8bit");
    QCOMPARE(laptop.fresh(u"CycleCount").toInt(), 65);
}

void QuirksOfCapacityTest::acceptsAFullChargeAboveTheDesign()
{
    Laptop laptop("thinkpad-45n1173-tlp330");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QVERIFY(laptop.fresh(u"FullyCharged").toBool());
}

void QuirksOfCapacityTest::acceptsAFullChargeThatIsTheDesignForEver()
{
    Laptop laptop("hp-pavilion-primary");
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity"), laptop.fresh(u"DesignCapacity"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 39);
}

void QuirksOfCapacityTest::dropsTemperaturesBeyondReason()
{
    Laptop cold("gta04-bq27000-allzero");
    QVERIFY(cold.absent(u"Temperature"));
    Laptop hot("openmoko-neo-bq27000-uncalibrated");
    QVERIFY(hot.absent(u"Temperature"));
    Laptop warm("chromebook-limozeen-sbs");
    QCOMPARE(warm.fresh(u"Temperature").toInt(), 1940);
}

void QuirksOfCapacityTest::dropsASaturatedGauge()
{
    Laptop laptop("openmoko-neo-bq27000-uncalibrated");
    laptop.sysfs.set(u"bq27000-battery"_s, u"charge_full"_s, "11697997");
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"DesignCapacity"));
    QVERIFY(laptop.absent(u"CurrentCapacity"));
}

void QuirksOfCapacityTest::ignoresADesignVoltageOfOneMillivolt()
{
    Laptop laptop("asus-ux32-481cycles");
    laptop.sysfs.set(u"BAT0"_s, u"voltage_min_design"_s, "1000");
    laptop.sysfs.set(u"BAT0"_s, u"voltage_now"_s, "8000000");
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity").toInt(), 5110);
}

void QuirksOfCapacityTest::hasNoChargeWhereWhatIsLeftIsFarAboveFull()
{
    Laptop laptop("asus-ux32vd");
    // A tenth above 44.611 Wh, and a microwatt hour more.
    laptop.sysfs.set(u"BAT0"_s, u"energy_now"_s, "49072100");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    Laptop other("asus-ux32vd");
    other.sysfs.set(u"BAT0"_s, u"energy_now"_s, "49072101");
    QVERIFY(other.absent(u"CurrentCapacity"));
}

FERRIN_TEST(QCoreApplication, QuirksOfCapacityTest)
#include "test_quirksofcapacity.moc"
