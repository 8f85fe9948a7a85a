// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Oddities of real machines in what is a system battery, one test for each.
class QuirksOfSuppliesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // types and names
    void knowsEachTypeByItsWord();
    void findsBatteriesAndAdaptersByTypeWhateverTheirNames_data();
    void findsBatteriesAndAdaptersByTypeWhateverTheirNames();
    // peripherals
    void ignoresAMouseThatComesFirst();
    void ignoresAKeyboardsPackBesideTheMainOne();
    void ignoresAnUninterruptiblePowerSupply();
    // two packs
    void sumsEnergiesAndRatesOfTwoPacks();
    void countsAnEmptyPackThatWaitsItsTurn();
    void followsAPackThatIsSwapped();
};

void QuirksOfSuppliesTest::knowsEachTypeByItsWord()
{
    QVERIFY(supplyTypeOf("Battery") == SupplyType::Battery);
    QVERIFY(supplyTypeOf("Mains") == SupplyType::Mains);
    QVERIFY(supplyTypeOf("Wireless") == SupplyType::Wireless);
    for (const char *usb : { "USB", "USB_C", "USB_PD", "USB_PD_DRP", "BrickID" })
        QVERIFY2(supplyTypeOf(usb) == SupplyType::Usb, usb);
    for (const char *other : { "", "UPS", "Unknown", "battery" })
        QVERIFY2(supplyTypeOf(other) == SupplyType::Other, other);
}

void QuirksOfSuppliesTest::findsBatteriesAndAdaptersByTypeWhateverTheirNames_data()
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

void QuirksOfSuppliesTest::findsBatteriesAndAdaptersByTypeWhateverTheirNames()
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

void QuirksOfSuppliesTest::ignoresAMouseThatComesFirst()
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

void QuirksOfSuppliesTest::ignoresAKeyboardsPackBesideTheMainOne()
{
    Laptop laptop("pine64-pinephone-keyboard");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 43);
}

void QuirksOfSuppliesTest::ignoresAnUninterruptiblePowerSupply()
{
    Laptop laptop("compal-laptop-ups-mouse-keyboard");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 51);
    QVERIFY(laptop.said(u"IsCharging").toBool());
    QCOMPARE(laptop.said(u"FullyCharged"), QVariant(false));
}

void QuirksOfSuppliesTest::sumsEnergiesAndRatesOfTwoPacks()
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

void QuirksOfSuppliesTest::countsAnEmptyPackThatWaitsItsTurn()
{
    Laptop laptop("thinkpad-t450-bat1-empty");
    laptop.sysfs.supply(u"BAT0"_s,
                        { { "type", "Battery" },
                          { "status", "Charging" },
                          { "energy_now", "11600000" },
                          { "energy_full", "23200000" },
                          { "power_now", "11600000" } });
    // 11.6 of 45.73 Wh. What is missing of the one pack, at a rate that will fade, then the other.
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 25);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 280);
    QVERIFY(laptop.said(u"IsCharging").toBool());
}

void QuirksOfSuppliesTest::followsAPackThatIsSwapped()
{
    Laptop laptop("thinkpad-dual-01av425-01av493");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 22);
    laptop.sysfs.removeSupply(u"BAT1"_s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 80);
    laptop.sysfs.load(test::FakeSysfs::record(u"thinkpad-dual-01av425-01av493"_s));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 22);
}

FERRIN_TEST(QCoreApplication, QuirksOfSuppliesTest)
#include "test_quirksofsupplies.moc"
