// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Oddities of real machines in the data of the adapter, one test for each.
class QuirksOfAdaptersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // online
    void believesTheBatteryWhereOneOfTwoMainsIsAlwaysOnline();
    void findsAnAdapterThatIsNoMains();
    void isOnExternalPowerWhileDischarging();
    void isOnExternalPowerWhereMainsIsAlwaysOfflineButTheBatteryCharges();
    void takesAnyNumberButZeroForOnline();
    // USB-C figures
    void takesTheContractWhereTheMaximumIsOfAnotherProfile();
    void takesTheMaximumWhereThePresentValuesAreStale();
    void saysNothingOfAnIdlePort();
    void takesTheGreatestFixedOfferOfThePartner();
    void ignoresAPortThatGivesPower();
    void doesNotCreditABarrelPlugWithAPortsOffer();
    void livesWithoutOffers();
    // sentinels and dirty text
    void cleansNamesOfGarbage();
};

void QuirksOfAdaptersTest::believesTheBatteryWhereOneOfTwoMainsIsAlwaysOnline()
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
    // The reverse case: a first adapter that is never online.
    laptop.sysfs.set(u"ADP1"_s, u"online"_s, "0");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
}

void QuirksOfAdaptersTest::findsAnAdapterThatIsNoMains()
{
    Laptop laptop("gpd-pocket-max170xx");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    laptop.sysfs.set(u"bq24190-charger"_s, u"online"_s, "0");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
}

void QuirksOfAdaptersTest::isOnExternalPowerWhileDischarging()
{
    Laptop laptop("apple-mbp16-t2-online-discharging");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
}

void QuirksOfAdaptersTest::isOnExternalPowerWhereMainsIsAlwaysOfflineButTheBatteryCharges()
{
    Laptop laptop("hp-snapdragon-x2-glymur");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
    laptop.sysfs.set(u"qcom-battmgr-bat"_s, u"status"_s, "Charging");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
}

void QuirksOfAdaptersTest::takesAnyNumberButZeroForOnline()
{
    Laptop laptop("thinkpad-lnv45n1-nodeexporter");
    laptop.sysfs.set(u"AC"_s, u"online"_s, "2");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
}

void QuirksOfAdaptersTest::takesTheContractWhereTheMaximumIsOfAnotherProfile()
{
    Laptop laptop("chromebook-cros-ucsi-pps");
    const QVariantMap before = laptop.adapter();
    QCOMPARE(before.value(u"Watts"_s).toInt(), 65);
    QCOMPARE(before.value(u"AdapterVoltage"_s).toInt(), 20'000);
    QCOMPARE(before.value(u"Current"_s).toInt(), 3'250);
    // After the fix in the kernel the maximum mixes two profiles; the contract is still preferred.
    const QString port = u"ucsi-source-psy-cros_ec_ucsi.4.auto2"_s;
    laptop.sysfs.set(port, u"voltage_max"_s, "20000000");
    laptop.sysfs.set(port, u"current_max"_s, "4000000");
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 65);
    // Without a contract, a maximum of 5.79 A is not plausible.
    laptop.sysfs.set(port, u"current_max"_s, "5790000");
    laptop.sysfs.set(port, u"current_now"_s, "0");
    QVERIFY(laptop.adapter().isEmpty());
}

void QuirksOfAdaptersTest::takesTheMaximumWhereThePresentValuesAreStale()
{
    Laptop laptop("thinkpad-t480s-ucsi");
    const QVariantMap details = laptop.adapter();
    QCOMPARE(details.value(u"Watts"_s).toInt(), 60);
    QCOMPARE(details.value(u"AdapterVoltage"_s).toInt(), 20'000);
    QCOMPARE(details.value(u"Current"_s).toInt(), 3'000);
    QVERIFY(!details.contains(u"Name"_s));
}

void QuirksOfAdaptersTest::saysNothingOfAnIdlePort()
{
    Laptop laptop("dell-xps13-ucsi-idle");
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(false));
    QVERIFY(laptop.absent(u"AdapterDetails"));
}

void QuirksOfAdaptersTest::takesTheGreatestFixedOfferOfThePartner()
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

void QuirksOfAdaptersTest::ignoresAPortThatGivesPower()
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

void QuirksOfAdaptersTest::doesNotCreditABarrelPlugWithAPortsOffer()
{
    Laptop laptop;
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    laptop.sysfs.supply(u"ucsi"_s, { { "type", "USB" }, { "online", "0" }, { "scope", "System" } });
    const QString partner = u"class/typec/port0-partner/"_s;
    const QString offer = partner + u"usb_power_delivery/source-capabilities/1:fixed_supply/"_s;
    laptop.sysfs.write(offer + u"voltage"_s, "5000mV");
    laptop.sysfs.write(offer + u"maximum_current"_s, "3000mA");
    laptop.sysfs.write(u"class/typec/port0/power_role"_s, "source [sink]");
    QVERIFY(laptop.adapter().isEmpty());
    laptop.sysfs.set(u"ucsi"_s, u"online"_s, "1");
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 15);
}

void QuirksOfAdaptersTest::livesWithoutOffers()
{
    Laptop laptop("hp-snapdragon-x2-glymur");
    laptop.sysfs.set(u"ucsi-source-psy-2"_s, u"online"_s, "1");
    laptop.sysfs.set(u"qcom-battmgr-bat"_s, u"status"_s, "Charging");
    laptop.sysfs.writeDirectory(u"class/typec/port1-partner/usb_power_delivery"_s);
    QVERIFY(laptop.fresh(u"AdapterDetails").isValid());
    QVERIFY(laptop.adapter().isEmpty());
}

void QuirksOfAdaptersTest::cleansNamesOfGarbage()
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

FERRIN_TEST(QCoreApplication, QuirksOfAdaptersTest)
#include "test_quirksofadapters.moc"
