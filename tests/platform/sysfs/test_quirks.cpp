// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"

#include <QTest>

using namespace ferrin;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using test::Laptop;

/// What real machines do to those who read them, one test for each oddity; the order is that of
/// tests/machines/README.md, which names the machines.
class TestQuirks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // 1: unit families
    void readsAMachineOfChargesAndOneOfEnergies();
    void readsBothFamiliesAndNone();
    void takesEnergyBesideACurrent();
    void derivesTheRestWhereChargeNowIsMissing();
    void convertsByTheDesignVoltageSoThatTheDesignStandsStill();
    // 2: cycle counts
    void hasNoCycleCountAtZeroAtSaturationAndWithoutTheFile();
    void dropsCycleCountsInAnotherUnit();
    void passesOnACountOfEightBits();
    // 3: full and design
    void acceptsAFullChargeAboveTheDesign();
    void acceptsAFullChargeThatIsTheDesignForEver();
    // 4: percent
    void clampsACapacityOf106To100();
    void fallsBackFromACapacityBeyondReason();
    void showsAtMost100WhereNowIsAboveFull();
    void trustsTheCapacityWhereChargeNowIsInAnotherUnit();
    void keepsTheCapacityWhereNowAndFullDisagree();
    void shows100PercentOfAWornPack();
    // 5: zeros
    void survivesADesignOfZero();
    void saysNothingForAGaugeOfZeros();
    void keepsAPercentageWithoutEnergies();
    void ignoresAPhantomSecondPack();
    void doesNotBelieveAFullSizePackThatReadsZero();
    void ignoresAPackThatIsNotPresent();
    // 6: status
    void isChargedWhenUnknownAndFull();
    void isChargedWhenNotChargingNearTheTop();
    void isNotChargedWhenHeldBelow();
    void isNotChargingWhenIdleAndUnknown();
    void isFullAtAnyPercentageAndCurrent();
    // 7: rates
    void takesTheMagnitudeOfANegativeRate();
    void hasNoTimeAtARateOfZero();
    void hasNoTimeAtTheNoiseOfAnIdleMachine();
    void hasNoTimeAtARateOfNonsense();
    // 8: names
    void findsBatteriesAndAdaptersByTypeWhateverTheirNames_data();
    void findsBatteriesAndAdaptersByTypeWhateverTheirNames();
    // 9: peripherals
    void ignoresAMouseThatComesFirst();
    void ignoresAKeyboardsPackBesideTheMainOne();
    void ignoresAnUninterruptiblePowerSupply();
    // 10: two packs
    void sumsEnergiesAndRatesOfTwoPacks();
    void countsAnEmptyPackThatWaitsItsTurn();
    void followsAPackThatIsSwapped();
    // 12: online
    void believesTheBatteryWhereOneOfTwoMainsIsAlwaysOnline();
    void findsAnAdapterThatIsNoMains();
    void isOnExternalPowerWhileDischarging();
    void isOnExternalPowerWhereMainsIsAlwaysOfflineButTheBatteryCharges();
    void takesAnyNumberButZeroForOnline();
    // 13: USB-C figures
    void takesTheContractWhereTheMaximumIsOfAnotherProfile();
    void takesTheMaximumWhereThePresentValuesAreStale();
    void saysNothingOfAnIdlePort();
    void takesTheGreatestFixedOfferOfThePartner();
    void ignoresAPortThatGivesPower();
    void livesWithoutOffers();
    // 14: transients
    void holdsTheChargeWhileTheGaugeFlaps();
    void hasNoTimeWhileTheRateIsMissingAfterUnplugging();
    void survivesASingleFileThatFails();
    void takesFilesOfDifferentMoments();
    // 15: sentinels and dirty text
    void hasNoTimeAtTheSentinelOf65535Minutes();
    void dropsTemperaturesBeyondReason();
    void dropsASaturatedGauge();
    void doesNotCareForAThresholdOfGarbage();
    void ignoresADesignVoltageOfOneMillivolt();
    void cleansNamesOfGarbage();
};

void TestQuirks::readsAMachineOfChargesAndOneOfEnergies()
{
    Laptop charges("framework13-frangwa");
    QCOMPARE(charges.fresh(u"AppleRawMaxCapacity").toInt(), 3992);
    QCOMPARE(charges.fresh(u"CurrentCapacity").toInt(), 99);
    Laptop energies("apple-mbp-t2-a2251");
    QCOMPARE(energies.fresh(u"AppleRawMaxCapacity").toInt(), 3468);
    QCOMPARE(energies.fresh(u"CurrentCapacity").toInt(), 85);
}

void TestQuirks::readsBothFamiliesAndNone()
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

void TestQuirks::takesEnergyBesideACurrent()
{
    Laptop laptop("asus-f5-2008-mixed");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Discharging");
    // 43.142 Wh at 0.693 A × 12.51 V = 8.669 W.
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 298);
}

void TestQuirks::derivesTheRestWhereChargeNowIsMissing()
{
    Laptop laptop("pinebookpro-cw2015");
    QCOMPARE(laptop.fresh(u"AppleRawCurrentCapacity").toInt(), 9408);
    Laptop designOnly("pine64-pinephone-keyboard");
    QCOMPARE(designOnly.fresh(u"CurrentCapacity").toInt(), 43);
    QVERIFY(designOnly.absent(u"AppleRawMaxCapacity"));
}

void TestQuirks::convertsByTheDesignVoltageSoThatTheDesignStandsStill()
{
    Laptop laptop("asus-ux32vd");
    QCOMPARE(laptop.fresh(u"DesignCapacity").toInt(), 6168);
    laptop.sysfs.set(u"BAT0"_s, u"voltage_now"_s, "6900000");
    QCOMPARE(laptop.fresh(u"DesignCapacity").toInt(), 6168);
}

void TestQuirks::hasNoCycleCountAtZeroAtSaturationAndWithoutTheFile()
{
    Laptop zero("asus-ux32vd");
    QVERIFY(zero.absent(u"CycleCount"));
    Laptop saturated("openmoko-neo-bq27000-uncalibrated");
    QVERIFY(saturated.absent(u"CycleCount"));
    Laptop none("hp-pavilion-power15-tlp446");
    QVERIFY(none.absent(u"CycleCount"));
}

void TestQuirks::dropsCycleCountsInAnotherUnit()
{
    Laptop laptop("gpd-pocket-max170xx");
    QVERIFY(laptop.absent(u"CycleCount"));
}

void TestQuirks::passesOnACountOfEightBits()
{
    Laptop laptop("framework13-7040-cycles-8bit");
    QCOMPARE(laptop.fresh(u"CycleCount").toInt(), 65);
}

void TestQuirks::acceptsAFullChargeAboveTheDesign()
{
    Laptop laptop("thinkpad-45n1173-tlp330");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QVERIFY(laptop.fresh(u"FullyCharged").toBool());
}

void TestQuirks::acceptsAFullChargeThatIsTheDesignForEver()
{
    Laptop laptop("hp-pavilion-primary");
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity"), laptop.fresh(u"DesignCapacity"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 39);
}

void TestQuirks::clampsACapacityOf106To100()
{
    Laptop laptop("sutils-capacity106");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QCOMPARE(laptop.fresh(u"MaxCapacity").toInt(), 100);
    laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, "111");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
}

void TestQuirks::fallsBackFromACapacityBeyondReason()
{
    Laptop laptop("apple-mbp-t2-a2251");
    for (const char *garbage : { "1536", "-1", "4294967295", "99999999999999999999", "0x55" }) {
        laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, garbage);
        QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 84);
    }
    Laptop alone("sutils-capacity106");
    alone.sysfs.set(u"BAT0"_s, u"capacity"_s, "1536");
    QVERIFY(alone.absent(u"CurrentCapacity"));
    QVERIFY(alone.absent(u"MaxCapacity"));
}

void TestQuirks::showsAtMost100WhereNowIsAboveFull()
{
    Laptop laptop("thinkpad-42t4969-over100");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QCOMPARE(laptop.fresh(u"AppleRawCurrentCapacity"), laptop.fresh(u"AppleRawMaxCapacity"));
}

void TestQuirks::trustsTheCapacityWhereChargeNowIsInAnotherUnit()
{
    Laptop laptop("apple-m1pro-macsmc-scale");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 87);
    QCOMPARE(laptop.fresh(u"AppleRawCurrentCapacity").toInt(), 4348);
    Laptop drained("apple-m1air-macsmc-scale");
    drained.sysfs.set(u"macsmc-battery"_s, u"capacity"_s, "72");
    for (const char *wrong : { "46089000", "11278000", "7950000" }) {
        drained.sysfs.set(u"macsmc-battery"_s, u"charge_now"_s, wrong);
        QCOMPARE(drained.fresh(u"CurrentCapacity").toInt(), 72);
        QCOMPARE(drained.fresh(u"AppleRawCurrentCapacity").toInt(), 2648);
    }
}

void TestQuirks::keepsTheCapacityWhereNowAndFullDisagree()
{
    Laptop board("orangepi-bq27541");
    QCOMPARE(board.fresh(u"CurrentCapacity").toInt(), 63);
    Laptop notebook("fujitsu-cmb1");
    QCOMPARE(notebook.fresh(u"CurrentCapacity").toInt(), 50);
}

void TestQuirks::shows100PercentOfAWornPack()
{
    Laptop laptop("hp-pavilion-power15-tlp446");
    laptop.sysfs.set(u"BAT0"_s, u"charge_full"_s, "348000");
    laptop.sysfs.set(u"BAT0"_s, u"charge_now"_s, "348000");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity").toInt(), 348);
}

void TestQuirks::survivesADesignOfZero()
{
    Laptop laptop("apple-mbp-t2-a2251");
    laptop.sysfs.set(u"BAT0"_s, u"energy_full_design"_s, "0");
    QVERIFY(laptop.absent(u"DesignCapacity"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 85);
    laptop.sysfs.set(u"BAT0"_s, u"energy_full"_s, "0");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 85);
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"TimeRemaining"));
}

void TestQuirks::saysNothingForAGaugeOfZeros()
{
    Laptop laptop("gta04-bq27000-allzero");
    // It stays like this; time does not make it truer.
    for (int refresh = 0; refresh < 20; ++refresh) {
        laptop.pass(5s);
        QVERIFY(laptop.absent(u"CurrentCapacity"));
        QVERIFY(!laptop.said(u"MaxCapacity").isValid());
    }
}

void TestQuirks::keepsAPercentageWithoutEnergies()
{
    Laptop laptop("pinebook-a64-upower");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 54);
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"TimeRemaining"));
}

void TestQuirks::ignoresAPhantomSecondPack()
{
    Laptop laptop("asus-ux32-481cycles");
    laptop.sysfs.supply(u"BAT1"_s,
                        { { "type", "Battery" },
                          { "present", "1" },
                          { "status", "Unknown" },
                          { "energy_full", "0" },
                          { "energy_now", "0" },
                          { "power_now", "0" },
                          { "voltage_now", "0" } });
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity").toInt(), 5524);
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 132);
}

void TestQuirks::doesNotBelieveAFullSizePackThatReadsZero()
{
    Laptop laptop("acer-chromebook-tab10-flapping");
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    // Half a minute later it still says so: then the pack is empty.
    laptop.pass(31s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity"), QVariant(0LL));
}

void TestQuirks::ignoresAPackThatIsNotPresent()
{
    Laptop laptop("olimex-lime2-no-battery");
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    QVERIFY(laptop.absent(u"FullyCharged"));
    QVERIFY(laptop.absent(u"IsCharging"));
}

void TestQuirks::isChargedWhenUnknownAndFull()
{
    for (const char *machine : { "toshiba-unknown-full", "unnamed-2021-over-design-unknown",
                                 "thinkpad-42t4969-over100" }) {
        Laptop laptop(machine);
        laptop.sysfs.supply(u"ACAD"_s, { { "type", "Mains" }, { "online", "1" } });
        QVERIFY2(laptop.fresh(u"FullyCharged").toBool(), machine);
        QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
        laptop.sysfs.set(u"ACAD"_s, u"online"_s, "0");
        QCOMPARE(laptop.fresh(u"FullyCharged"), QVariant(false));
    }
}

void TestQuirks::isChargedWhenNotChargingNearTheTop()
{
    Laptop thinkpad("thinkpad-e590");
    QVERIFY(thinkpad.fresh(u"FullyCharged").toBool());
    Laptop board("olimex-axp20x-battery");
    QVERIFY(board.fresh(u"FullyCharged").toBool());
}

void TestQuirks::isNotChargedWhenHeldBelow()
{
    for (const char *machine : { "microsoft-surface-pro7", "thinkpad-dual-01av425-01av493" }) {
        Laptop laptop(machine);
        QCOMPARE(laptop.fresh(u"FullyCharged"), QVariant(false));
        QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
        QVERIFY(laptop.absent(u"TimeRemaining"));
    }
}

void TestQuirks::isNotChargingWhenIdleAndUnknown()
{
    Laptop held("dell-70n2f95-biosthreshold-tlp621");
    held.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    QCOMPARE(held.fresh(u"IsCharging"), QVariant(false));
    QCOMPARE(held.fresh(u"FullyCharged"), QVariant(false));
    // With power flowing either way, nobody knows.
    held.sysfs.set(u"BAT0"_s, u"current_now"_s, "1500000");
    QVERIFY(held.absent(u"IsCharging"));
}

void TestQuirks::isFullAtAnyPercentageAndCurrent()
{
    Laptop fujitsu("fujitsu-cmb1");
    QVERIFY(fujitsu.fresh(u"FullyCharged").toBool());
    Laptop asus("asus-f5-2008-mixed");
    QVERIFY(asus.fresh(u"FullyCharged").toBool());
    QVERIFY(asus.absent(u"TimeRemaining"));
}

void TestQuirks::takesTheMagnitudeOfANegativeRate()
{
    Laptop laptop("samsung-sr-real-battery");
    laptop.sysfs.set(u"BAT1"_s, u"current_now"_s, "-692000");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 109);
    QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
    Laptop charging("framework13-frangwa");
    charging.sysfs.set(u"BAT1"_s, u"current_now"_s, "-159000");
    QCOMPARE(charging.fresh(u"TimeRemaining").toInt(), 13);
}

void TestQuirks::hasNoTimeAtARateOfZero()
{
    Laptop discharging("hp-pavilion-primary");
    QVERIFY(discharging.absent(u"TimeRemaining"));
    Laptop charging("orangepi-bq27541");
    QVERIFY(charging.absent(u"TimeRemaining"));
}

void TestQuirks::hasNoTimeAtTheNoiseOfAnIdleMachine()
{
    Laptop laptop("compal-laptop-ups-mouse-keyboard");
    QVERIFY(laptop.fresh(u"IsCharging").toBool());
    QVERIFY(laptop.absent(u"TimeRemaining"));
    laptop.sysfs.set(u"BAT1"_s, u"power_now"_s, "99000");
    QVERIFY(laptop.absent(u"TimeRemaining"));
}

void TestQuirks::hasNoTimeAtARateOfNonsense()
{
    Laptop laptop("apple-mbp-t2-a2251");
    laptop.sysfs.set(u"BAT0"_s, u"power_now"_s, "635000000");
    QVERIFY(laptop.absent(u"TimeRemaining"));
    Laptop tablet("acer-chromebook-tab10-flapping");
    tablet.sysfs.set(u"sbs-9-000b"_s, u"capacity"_s, "62");
    tablet.sysfs.set(u"sbs-9-000b"_s, u"energy_now"_s, "22654800");
    tablet.sysfs.set(u"sbs-9-000b"_s, u"power_now"_s, "73190400");
    QCOMPARE(tablet.fresh(u"CurrentCapacity").toInt(), 62);
    QVERIFY(tablet.absent(u"TimeRemaining"));
}

void TestQuirks::findsBatteriesAndAdaptersByTypeWhateverTheirNames_data()
{
    QTest::addColumn<QString>("battery");
    QTest::addColumn<QString>("adapter");
    QTest::newRow("one") << u"BAT1"_s << u"ACAD"_s;
    QTest::newRow("two") << u"CMB1"_s << u"ADP1"_s;
    QTest::newRow("three") << u"BATT"_s << u"macsmc-ac"_s;
    QTest::newRow("four") << u"battery"_s << u"bq24190-charger"_s;
    QTest::newRow("five") << u"macsmc-battery"_s << u"qcom-battmgr-usb"_s;
    QTest::newRow("six") << u"qcom-battmgr-bat"_s << u"CROS_USBPD_CHARGER1"_s;
    QTest::newRow("seven") << u"sbs-12-000b"_s << u"ucsi-source-psy-USBC000:001"_s;
    QTest::newRow("eight") << u"cw2015-battery"_s << u"BAT9"_s;
    QTest::newRow("nine") << u"AC"_s << u"hidpp_battery_0"_s;
}

void TestQuirks::findsBatteriesAndAdaptersByTypeWhateverTheirNames()
{
    QFETCH(QString, battery);
    QFETCH(QString, adapter);
    Laptop laptop;
    laptop.sysfs.supply(battery,
                        { { "type", "Battery" }, { "status", "Charging" }, { "capacity", "41" } });
    laptop.sysfs.supply(adapter, { { "type", "USB" }, { "online", "1" } });
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 41);
    QVERIFY(laptop.said(u"ExternalConnected").toBool());
    QVERIFY(laptop.said(u"IsCharging").toBool());
}

void TestQuirks::ignoresAMouseThatComesFirst()
{
    Laptop laptop("lenovo-l21l4pd8-mouse");
    laptop.sysfs.supply(u"A-mouse"_s,
                        { { "type", "Battery" },
                          { "scope", "Device" },
                          { "status", "Discharging" },
                          { "online", "1" },
                          { "capacity", "65" } });
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QVERIFY(laptop.said(u"FullyCharged").toBool());
    Laptop mouseAlone("logitech-m510-mouse");
    QCOMPARE(mouseAlone.registry().matchingService({ u"AppleSmartBattery"_s }), 0U);
}

void TestQuirks::ignoresAKeyboardsPackBesideTheMainOne()
{
    Laptop laptop("pine64-pinephone-keyboard");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 43);
}

void TestQuirks::ignoresAnUninterruptiblePowerSupply()
{
    Laptop laptop("compal-laptop-ups-mouse-keyboard");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 51);
    QVERIFY(laptop.said(u"IsCharging").toBool());
    QCOMPARE(laptop.said(u"FullyCharged"), QVariant(false));
}

void TestQuirks::sumsEnergiesAndRatesOfTwoPacks()
{
    Laptop laptop;
    laptop.sysfs.supply(u"BAT0"_s,
                        { { "type", "Battery" },
                          { "status", "Discharging" },
                          { "capacity", "100" },
                          { "energy_now", "24000000" },
                          { "energy_full", "24000000" },
                          { "power_now", "3000000" } });
    laptop.sysfs.supply(u"BAT1"_s,
                        { { "type", "Battery" },
                          { "status", "Discharging" },
                          { "capacity", "50" },
                          { "energy_now", "36000000" },
                          { "energy_full", "72000000" },
                          { "power_now", "12000000" } });
    // 60 of 96 Wh, not the 75 that the mean of the percentages would be; 4 hours at 15 W.
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 62);
    QCOMPARE(laptop.said(u"MaxCapacity").toInt(), 100);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 240);
}

void TestQuirks::countsAnEmptyPackThatWaitsItsTurn()
{
    Laptop laptop("thinkpad-t450-bat1-empty");
    laptop.sysfs.supply(u"BAT0"_s,
                        { { "type", "Battery" },
                          { "status", "Charging" },
                          { "energy_now", "11600000" },
                          { "energy_full", "23200000" },
                          { "power_now", "11600000" } });
    // 11.6 of 45.73 Wh; 34.13 Wh are missing at 11.6 W.
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 25);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 176);
    QVERIFY(laptop.said(u"IsCharging").toBool());
}

void TestQuirks::followsAPackThatIsSwapped()
{
    Laptop laptop("thinkpad-dual-01av425-01av493");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 22);
    laptop.sysfs.removeSupply(u"BAT1"_s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 80);
    laptop.sysfs.load(test::FakeSysfs::record(u"thinkpad-dual-01av425-01av493"_s));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 22);
}

void TestQuirks::believesTheBatteryWhereOneOfTwoMainsIsAlwaysOnline()
{
    Laptop laptop("apple-mbp2017-two-mains");
    laptop.sysfs.set(u"ADP1"_s, u"online"_s, "0");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Discharging");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
    laptop.sysfs.set(u"ADP1"_s, u"online"_s, "1");
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Charging");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    laptop.sysfs.set(u"BAT0"_s, u"status"_s, "Full");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    // A first adapter that is dead for ever is the same case the other way round.
    laptop.sysfs.set(u"ADP1"_s, u"online"_s, "0");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
}

void TestQuirks::findsAnAdapterThatIsNoMains()
{
    Laptop laptop("gpd-pocket-max170xx");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    laptop.sysfs.set(u"bq24190-charger"_s, u"online"_s, "0");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
}

void TestQuirks::isOnExternalPowerWhileDischarging()
{
    Laptop laptop("apple-mbp16-t2-online-discharging");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
}

void TestQuirks::isOnExternalPowerWhereMainsIsAlwaysOfflineButTheBatteryCharges()
{
    Laptop laptop("hp-snapdragon-x2-glymur");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
    laptop.sysfs.set(u"qcom-battmgr-bat"_s, u"status"_s, "Charging");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
}

void TestQuirks::takesAnyNumberButZeroForOnline()
{
    Laptop laptop("thinkpad-lnv45n1-nodeexporter");
    laptop.sysfs.set(u"AC"_s, u"online"_s, "2");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
}

void TestQuirks::takesTheContractWhereTheMaximumIsOfAnotherProfile()
{
    Laptop laptop("chromebook-cros-ucsi-pps");
    const QVariantMap before = laptop.adapter();
    QCOMPARE(before.value(u"Watts"_s).toInt(), 65);
    QCOMPARE(before.value(u"AdapterVoltage"_s).toInt(), 20'000);
    QCOMPARE(before.value(u"Current"_s).toInt(), 3'250);
    // After the kernel's repair the maximum is of two profiles at once; the contract still counts.
    const QString port = u"ucsi-source-psy-cros_ec_ucsi.4.auto2"_s;
    laptop.sysfs.set(port, u"voltage_max"_s, "20000000");
    laptop.sysfs.set(port, u"current_max"_s, "4000000");
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 65);
    // Without a contract, a maximum of 5.79 A is nothing to show.
    laptop.sysfs.set(port, u"current_max"_s, "5790000");
    laptop.sysfs.set(port, u"current_now"_s, "0");
    QVERIFY(laptop.adapter().isEmpty());
}

void TestQuirks::takesTheMaximumWhereThePresentValuesAreStale()
{
    Laptop laptop("thinkpad-t480s-ucsi");
    const QVariantMap details = laptop.adapter();
    QCOMPARE(details.value(u"Watts"_s).toInt(), 60);
    QCOMPARE(details.value(u"AdapterVoltage"_s).toInt(), 20'000);
    QCOMPARE(details.value(u"Current"_s).toInt(), 3'000);
    QVERIFY(!details.contains(u"Name"_s));
}

void TestQuirks::saysNothingOfAnIdlePort()
{
    Laptop laptop("dell-xps13-ucsi-idle");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
    QVERIFY(laptop.absent(u"AdapterDetails"));
}

void TestQuirks::takesTheGreatestFixedOfferOfThePartner()
{
    Laptop laptop;
    const QJsonObject machine = test::FakeSysfs::record(u"thinkpad-x13g3-dell130w"_s);
    const QJsonObject offers
        = machine["usb_power_delivery"_L1]["pd38/source-capabilities"_L1].toObject();
    QCOMPARE(offers.size(), 6);
    laptop.sysfs.load(
        { { u"typec"_s,
            QJsonObject {
                { u"port1"_s, QJsonObject { { u"power_role"_s, u"source [sink]"_s } } },
                { u"port1-partner/usb_power_delivery/source-capabilities"_s, offers },
            } } });
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    const QVariantMap details = laptop.adapter();
    QCOMPARE(details.value(u"Watts"_s).toInt(), 100);
    QCOMPARE(details.value(u"AdapterVoltage"_s).toInt(), 20'000);
    QCOMPARE(details.value(u"Current"_s).toInt(), 5'000);
}

void TestQuirks::ignoresAPortThatGivesPower()
{
    Laptop laptop;
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    const QString offer
        = u"class/typec/port0-partner/usb_power_delivery/source-capabilities/1:fixed_supply/"_s;
    laptop.sysfs.write(offer + u"voltage"_s, "5000mV");
    laptop.sysfs.write(offer + u"maximum_current"_s, "1500mA");
    laptop.sysfs.write(u"class/typec/port0/power_role"_s, "[source] sink");
    QVERIFY(laptop.adapter().isEmpty());
    laptop.sysfs.write(u"class/typec/port0/power_role"_s, "source [sink]");
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 8);
}

void TestQuirks::livesWithoutOffers()
{
    Laptop laptop("hp-snapdragon-x2-glymur");
    laptop.sysfs.set(u"ucsi-source-psy-2"_s, u"online"_s, "1");
    laptop.sysfs.writeDirectory(u"class/typec/port1-partner/usb_power_delivery"_s);
    QVERIFY(laptop.fresh(u"AdapterDetails").isValid());
    QVERIFY(laptop.adapter().isEmpty());
}

void TestQuirks::holdsTheChargeWhileTheGaugeFlaps()
{
    Laptop laptop("acer-chromebook-tab10-flapping");
    const QString gauge = u"sbs-9-000b"_s;
    const auto read = [&](const char *capacity, const char *energy) {
        laptop.pass(5s);
        laptop.sysfs.set(gauge, u"capacity"_s, capacity);
        laptop.sysfs.set(gauge, u"energy_now"_s, energy);
        return laptop.fresh(u"CurrentCapacity");
    };
    for (int flap = 0; flap < 20; ++flap) {
        QCOMPARE(read("62", "22654800").toInt(), 62);
        QCOMPARE(read("0", "0").toInt(), 62);
        QVERIFY(!laptop.said(u"TimeRemaining").isValid());
        QVERIFY(!laptop.said(u"AppleRawCurrentCapacity").isValid());
        QCOMPARE(laptop.said(u"AppleRawMaxCapacity").toInt(), 9518);
    }
    // Only one of the two fails: the other one tells.
    QCOMPARE(read("0", "22654800").toInt(), 61);
    QCOMPARE(read("62", "0").toInt(), 62);
}

void TestQuirks::hasNoTimeWhileTheRateIsMissingAfterUnplugging()
{
    Laptop laptop("dell-xps15-9550-nocurrent");
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 80);
    laptop.sysfs.set(u"BAT0"_s, u"current_now"_s, "950000");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 359);
}

void TestQuirks::survivesASingleFileThatFails()
{
    Laptop deck("steamdeck-oled-enodev");
    deck.sysfs.set(u"BAT1"_s, u"capacity"_s, "100");
    deck.sysfs.set(u"BAT1"_s, u"status"_s, "Full");
    deck.sysfs.set(u"ACAD"_s, u"online"_s, "1");
    QCOMPARE(deck.fresh(u"CurrentCapacity").toInt(), 100);
    QVERIFY(deck.said(u"FullyCharged").toBool());
    QVERIFY(!deck.said(u"TimeRemaining").isValid());
}

void TestQuirks::takesFilesOfDifferentMoments()
{
    Laptop laptop("thinkpad-lnv45n1-procfs");
    laptop.sysfs.set(u"BAT0"_s, u"energy_full"_s, "47390000");
    // The capacity is of now; energy_now is of a time when full was more.
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 98);
    QCOMPARE(laptop.said(u"AppleRawCurrentCapacity"), laptop.said(u"AppleRawMaxCapacity"));
}

void TestQuirks::hasNoTimeAtTheSentinelOf65535Minutes()
{
    Laptop laptop("chromebook-juniper-sbs");
    laptop.sysfs.set(u"sbs-12-000b"_s, u"status"_s, "Discharging");
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QVERIFY(laptop.absent(u"AvgTimeToEmpty"));
    // The rate may still know.
    laptop.sysfs.set(u"sbs-12-000b"_s, u"current_now"_s, "-426200");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 599);
}

void TestQuirks::dropsTemperaturesBeyondReason()
{
    Laptop cold("gta04-bq27000-allzero");
    QVERIFY(cold.absent(u"Temperature"));
    Laptop hot("openmoko-neo-bq27000-uncalibrated");
    QVERIFY(hot.absent(u"Temperature"));
    Laptop warm("chromebook-limozeen-sbs");
    QCOMPARE(warm.fresh(u"Temperature").toInt(), 1940);
}

void TestQuirks::dropsASaturatedGauge()
{
    Laptop laptop("openmoko-neo-bq27000-uncalibrated");
    laptop.sysfs.set(u"bq27000-battery"_s, u"charge_full"_s, "11697997");
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"DesignCapacity"));
    QVERIFY(laptop.absent(u"CurrentCapacity"));
}

void TestQuirks::doesNotCareForAThresholdOfGarbage()
{
    Laptop laptop("apple-mbp-t2-a2251");
    laptop.sysfs.set(u"BAT0"_s, u"charge_control_end_threshold"_s, "-962691840");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 85);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 17);
}

void TestQuirks::ignoresADesignVoltageOfOneMillivolt()
{
    Laptop laptop("asus-ux32-481cycles");
    laptop.sysfs.set(u"BAT0"_s, u"voltage_min_design"_s, "1000");
    laptop.sysfs.set(u"BAT0"_s, u"voltage_now"_s, "8000000");
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity").toInt(), 5110);
}

void TestQuirks::cleansNamesOfGarbage()
{
    Laptop laptop("lenovo-l21l4pd8-mouse");
    const auto nameIs = [&laptop](const QByteArray &name) {
        laptop.sysfs.set(u"ADP1"_s, u"model_name"_s, name);
        return laptop.adapter().value(u"Name"_s);
    };
    QCOMPARE(nameIs("  65W USB-C  ").toString(), u"65W USB-C"_s);
    QCOMPARE(nameIs("LNV-45N1\xff\xfe").toString(), u"LNV-45N1"_s);
    for (const char *placeholder :
         { "Primary", "standard", "BAT", "1", "<BATT>", "Notebook", "OEM", "", "   ", "\xff" })
        QVERIFY2(!nameIs(placeholder).isValid(), placeholder);
}

QTEST_GUILESS_MAIN(TestQuirks)
#include "test_quirks.moc"
