// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Oddities of real machines in the charge, one test for each.
class QuirksOfChargeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // percent
    void clampsACapacityOf106To100();
    void fallsBackFromACapacityBeyondReason();
    void showsAtMost100WhereNowIsAboveFull();
    void trustsTheCapacityWhereChargeNowIsInAnotherUnit();
    void keepsTheCapacityWhereNowAndFullDisagree();
    void shows100PercentOfAWornPack();
    // zeros
    void survivesADesignOfZero();
    void saysNothingForAGaugeOfZeros();
    void keepsAPercentageWithoutEnergies();
    void ignoresAPhantomSecondPack();
    void doesNotBelieveAFullSizePackThatReadsZero();
    void ignoresAPackThatIsNotPresent();
    // transients
    void holdsTheChargeWhileTheGaugeFlaps();
    void hasNoTimeWhileTheRateIsMissingAfterUnplugging();
    void survivesASingleFileThatFails();
    void takesFilesOfDifferentMoments();
    // sentinels and dirty text
    void doesNotCareForAThresholdOfGarbage();
};

void QuirksOfChargeTest::clampsACapacityOf106To100()
{
    Laptop laptop("sutils-capacity106");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QCOMPARE(laptop.fresh(u"MaxCapacity").toInt(), 100);
    laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, "111");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
}

void QuirksOfChargeTest::fallsBackFromACapacityBeyondReason()
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

void QuirksOfChargeTest::showsAtMost100WhereNowIsAboveFull()
{
    Laptop laptop("thinkpad-42t4969-over100");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QCOMPARE(laptop.fresh(u"AppleRawCurrentCapacity"), laptop.fresh(u"AppleRawMaxCapacity"));
}

void QuirksOfChargeTest::trustsTheCapacityWhereChargeNowIsInAnotherUnit()
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

void QuirksOfChargeTest::keepsTheCapacityWhereNowAndFullDisagree()
{
    Laptop board("orangepi-bq27541");
    QCOMPARE(board.fresh(u"CurrentCapacity").toInt(), 63);
    Laptop notebook("fujitsu-cmb1");
    QCOMPARE(notebook.fresh(u"CurrentCapacity").toInt(), 50);
}

void QuirksOfChargeTest::shows100PercentOfAWornPack()
{
    Laptop laptop("hp-pavilion-power15-tlp446");
    laptop.sysfs.set(u"BAT0"_s, u"charge_full"_s, "348000");
    laptop.sysfs.set(u"BAT0"_s, u"charge_now"_s, "348000");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 100);
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity").toInt(), 348);
}

void QuirksOfChargeTest::survivesADesignOfZero()
{
    Laptop laptop("apple-mbp-t2-a2251");
    laptop.sysfs.set(u"BAT0"_s, u"energy_full_design"_s, "0");
    QVERIFY(laptop.absent(u"DesignCapacity"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 85);
    Laptop other("apple-mbp-t2-a2251");
    other.sysfs.set(u"BAT0"_s, u"energy_full"_s, "0");
    QCOMPARE(other.fresh(u"CurrentCapacity").toInt(), 85);
    QVERIFY(other.absent(u"AppleRawMaxCapacity"));
    QVERIFY(other.absent(u"TimeRemaining"));
}

void QuirksOfChargeTest::saysNothingForAGaugeOfZeros()
{
    Laptop laptop("gta04-bq27000-allzero");
    // It stays like this, however long it lasts.
    for (int refresh = 0; refresh < 20; ++refresh) {
        laptop.pass(5s);
        QVERIFY(laptop.absent(u"CurrentCapacity"));
        QVERIFY(!laptop.said(u"MaxCapacity").isValid());
    }
}

void QuirksOfChargeTest::keepsAPercentageWithoutEnergies()
{
    Laptop laptop("pinebook-a64-upower");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 54);
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"TimeRemaining"));
}

void QuirksOfChargeTest::ignoresAPhantomSecondPack()
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

void QuirksOfChargeTest::doesNotBelieveAFullSizePackThatReadsZero()
{
    Laptop laptop("acer-chromebook-tab10-flapping");
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    // After half a minute the zero is accepted.
    laptop.pass(31s);
    QCOMPARE(laptop.fresh(u"CurrentCapacity"), QVariant(0LL));
}

void QuirksOfChargeTest::ignoresAPackThatIsNotPresent()
{
    Laptop laptop("olimex-lime2-no-battery");
    QVERIFY(laptop.absent(u"CurrentCapacity"));
    QVERIFY(laptop.absent(u"FullyCharged"));
    QVERIFY(laptop.absent(u"IsCharging"));
}

void QuirksOfChargeTest::holdsTheChargeWhileTheGaugeFlaps()
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
    // Only one of the two fails; the other confirms the charge.
    QCOMPARE(read("0", "22654800").toInt(), 61);
    QCOMPARE(read("62", "0").toInt(), 62);
}

void QuirksOfChargeTest::hasNoTimeWhileTheRateIsMissingAfterUnplugging()
{
    Laptop laptop("dell-xps15-9550-nocurrent");
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 80);
    laptop.sysfs.set(u"BAT0"_s, u"current_now"_s, "950000");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 359);
}

void QuirksOfChargeTest::survivesASingleFileThatFails()
{
    Laptop deck("steamdeck-oled-enodev");
    deck.sysfs.set(u"BAT1"_s, u"capacity"_s, "100");
    deck.sysfs.set(u"BAT1"_s, u"status"_s, "Full");
    deck.sysfs.set(u"ACAD"_s, u"online"_s, "1");
    QCOMPARE(deck.fresh(u"CurrentCapacity").toInt(), 100);
    QVERIFY(deck.said(u"FullyCharged").toBool());
    QVERIFY(!deck.said(u"TimeRemaining").isValid());
}

void QuirksOfChargeTest::takesFilesOfDifferentMoments()
{
    Laptop laptop("thinkpad-lnv45n1-procfs");
    laptop.sysfs.set(u"BAT0"_s, u"energy_full"_s, "47390000");
    // The capacity is current; energy_now was computed with an earlier, greater energy_full.
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 98);
    QCOMPARE(laptop.said(u"AppleRawCurrentCapacity"), laptop.said(u"AppleRawMaxCapacity"));
}

void QuirksOfChargeTest::doesNotCareForAThresholdOfGarbage()
{
    Laptop laptop("apple-mbp-t2-a2251");
    laptop.sysfs.set(u"BAT0"_s, u"charge_control_end_threshold"_s, "-962691840");
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 85);
    QCOMPARE(laptop.said(u"TimeRemaining").toInt(), 38);
}

FERRIN_TEST(QCoreApplication, QuirksOfChargeTest)
#include "test_quirksofcharge.moc"
