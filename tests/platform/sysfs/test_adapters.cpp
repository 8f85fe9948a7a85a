// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTemporaryFile>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Adapters, from every source of data about them; see test_quirksofadapters.cpp for oddities.
class AdaptersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysOfAPlainAdapterOnlyThatItIsThere();
    void hasNoDetailsWithoutExternalPower();
    void saysVoltsAmpsWattsNameAndMaker();
    void appearsWhenTheDetailsArriveLate();
    void takesTheGreatestOfSeveralAdapters();
    void takesTheFirmwaresRatingForABarrelPlug();
    void ignoresARatingBeyondReason_data();
    void ignoresARatingBeyondReason();
    void takesTheRatingOfAChromebooksPort();
    void doesNotTakeAHostsLimitForTheAdapters();
    void acceptsOnlyPlausiblePairs_data();
    void acceptsOnlyPlausiblePairs();
    void namesThePartnersMaker();
    void livesWithoutAListOfMakers();
    void takesNoUsbIdForAName();
};

void AdaptersTest::saysOfAPlainAdapterOnlyThatItIsThere()
{
    Laptop laptop;
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    QCOMPARE(laptop.said(u"AdapterDetails"), QVariant(QVariantMap()));
}

void AdaptersTest::hasNoDetailsWithoutExternalPower()
{
    Laptop laptop("thinkpad-t480s-ucsi");
    QVERIFY(!laptop.adapter().isEmpty());
    laptop.sysfs.set(u"ucsi-source-psy-USBC000:001"_s, u"online"_s, "0");
    QVERIFY(laptop.absent(u"AdapterDetails"));
}

void AdaptersTest::saysVoltsAmpsWattsNameAndMaker()
{
    Laptop laptop;
    laptop.sysfs.supply(u"ucsi"_s,
                        { { "type", "USB" },
                          { "online", "1" },
                          { "scope", "System" },
                          { "usb_type", "C [PD] PD_PPS" },
                          { "voltage_now", "20000000" },
                          { "current_now", "3250000" },
                          { "model_name", "65W USB-C" },
                          { "manufacturer", "Acme" } });
    const QVariantMap expected { { u"Watts"_s, 65LL },
                                 { u"AdapterVoltage"_s, 20'000LL },
                                 { u"Current"_s, 3'250LL },
                                 { u"Name"_s, u"65W USB-C"_s },
                                 { u"Manufacturer"_s, u"Acme"_s } };
    QCOMPARE(laptop.adapter(), expected);
}

void AdaptersTest::appearsWhenTheDetailsArriveLate()
{
    Laptop laptop("thinkpad-t480s-ucsi");
    const QString port = u"ucsi-source-psy-USBC000:001"_s;
    laptop.sysfs.set(port, u"current_now"_s, "0");
    laptop.sysfs.set(port, u"current_max"_s, "0");
    QVERIFY(laptop.adapter().isEmpty());
    laptop.sysfs.set(port, u"current_max"_s, "3000000");
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 60);
}

void AdaptersTest::takesTheGreatestOfSeveralAdapters()
{
    Laptop laptop("thinkpad-t480s-ucsi");
    laptop.sysfs.supply(u"AC"_s,
                        { { "type", "Mains" }, { "online", "1" }, { "model_name", "Weak one" } });
    laptop.sysfs.supply(u"zzz"_s,
                        { { "type", "USB" },
                          { "online", "1" },
                          { "usb_type", "[PD]" },
                          { "voltage_now", "20000000" },
                          { "current_now", "4700000" },
                          { "model_name", "Strong one" } });
    laptop.sysfs.supply(u"zzzy"_s,
                        { { "type", "USB" },
                          { "online", "1" },
                          { "usb_type", "[PD]" },
                          { "voltage_now", "9000000" },
                          { "current_now", "3000000" },
                          { "model_name", "Late one" } });
    laptop.sysfs.supply(u"zzzz"_s,
                        { { "type", "Mains" }, { "online", "0" }, { "model_name", "Idle one" } });
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 94);
    QCOMPARE(laptop.adapter().value(u"Name"_s).toString(), u"Strong one"_s);
}

void AdaptersTest::takesTheFirmwaresRatingForABarrelPlug()
{
    Laptop laptop;
    laptop.sysfs.supply(u"ADP1"_s, { { "type", "Mains" }, { "online", "1" } });
    laptop.sysfs.write(u"bus/platform/devices/INT3407:00/dptf_power/adapter_rating_mw"_s, "130000");
    QCOMPARE(laptop.adapter(), (QVariantMap { { u"Watts"_s, 130LL } }));
}

void AdaptersTest::ignoresARatingBeyondReason_data()
{
    QTest::addColumn<QByteArray>("rating");
    for (const char *rating : { "0", "-1", "4294967295", "x", "500001", "999" })
        QTest::newRow(rating) << QByteArray(rating);
}

void AdaptersTest::ignoresARatingBeyondReason()
{
    QFETCH(QByteArray, rating);
    Laptop laptop;
    laptop.sysfs.supply(u"ADP1"_s, { { "type", "Mains" }, { "online", "1" } });
    laptop.sysfs.write(u"bus/platform/devices/INT3407:00/dptf_power/adapter_rating_mw"_s, rating);
    QVERIFY(laptop.adapter().isEmpty());
}

void AdaptersTest::takesTheRatingOfAChromebooksPort()
{
    Laptop laptop;
    laptop.sysfs.supply(u"CROS_USBPD_CHARGER1"_s,
                        { { "type", "USB" },
                          { "online", "1" },
                          { "voltage_now", "4512000" },
                          { "voltage_max_design", "5000000" },
                          { "current_max", "3000000" } });
    QCOMPARE(laptop.adapter().value(u"Watts"_s).toInt(), 15);
}

void AdaptersTest::doesNotTakeAHostsLimitForTheAdapters()
{
    Laptop laptop;
    laptop.sysfs.supply(u"axp20x-usb"_s,
                        { { "type", "USB" },
                          { "online", "1" },
                          { "usb_type", "[SDP] DCP CDP" },
                          { "voltage_now", "5040000" },
                          { "current_now", "450000" },
                          { "voltage_max", "5000000" },
                          { "current_max", "500000" } });
    QVERIFY(laptop.adapter().isEmpty());
}

void AdaptersTest::acceptsOnlyPlausiblePairs_data()
{
    QTest::addColumn<qlonglong>("millivolts");
    QTest::addColumn<qlonglong>("milliamps");
    QTest::addColumn<bool>("plausible");
    QTest::newRow("least volts") << 5'000LL << 900LL << true;
    QTest::newRow("fewer") << 4'999LL << 900LL << false;
    QTest::newRow("most volts") << 48'000LL << 5'000LL << true;
    QTest::newRow("more") << 48'001LL << 5'000LL << false;
    QTest::newRow("too many amps") << 39'000LL << 5'930LL << false;
    QTest::newRow("no amps") << 20'000LL << 0LL << false;
    QTest::newRow("negative amps") << 20'000LL << -3'000LL << false;
}

void AdaptersTest::acceptsOnlyPlausiblePairs()
{
    QFETCH(qlonglong, millivolts);
    QFETCH(qlonglong, milliamps);
    QTEST(plausibleOffer(millivolts, milliamps).has_value(), "plausible");
}

namespace {

void attachPartner(Laptop &laptop, const QByteArray &header)
{
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    laptop.sysfs.write(u"class/typec/port0/power_role"_s, "source [sink]");
    laptop.sysfs.write(u"class/typec/port0-partner/identity/id_header"_s, header);
}

} // namespace

void AdaptersTest::namesThePartnersMaker()
{
    QTemporaryFile list;
    QVERIFY(list.open());
    list.write(
        "# a comment\n1234  Another\n18d1  Acme Power GmbH\n\t4ee1  a device\nC 00  (class)\n"
        "abcd  no vendor\n");
    list.close();
    Laptop laptop(QStringList { u"/nothing/there"_s, list.fileName() });
    attachPartner(laptop, "0x6c0018d1");
    QCOMPARE(laptop.adapter().value(u"Manufacturer"_s).toString(), u"Acme Power GmbH"_s);
    for (const char *unknown :
         { "0x6c00abcd", "0x00000000", "0x", "x", "0x123456789abcdef01", "" }) {
        laptop.sysfs.write(u"class/typec/port0-partner/identity/id_header"_s, unknown);
        QVERIFY2(!laptop.adapter().contains(u"Manufacturer"_s), unknown);
    }
}

void AdaptersTest::livesWithoutAListOfMakers()
{
    Laptop laptop(QStringList { u"/nothing/there"_s });
    attachPartner(laptop, "0x6c0018d1");
    QVERIFY(laptop.adapter().isEmpty());
}

void AdaptersTest::takesNoUsbIdForAName()
{
    Laptop laptop;
    laptop.sysfs.supply(u"CROS_USBPD_CHARGER0"_s,
                        { { "type", "USB" },
                          { "online", "1" },
                          { "manufacturer", "18d1" },
                          { "model_name", "5040" } });
    QVERIFY(laptop.adapter().isEmpty());
}

FERRIN_TEST(QCoreApplication, AdaptersTest)
#include "test_adapters.moc"
