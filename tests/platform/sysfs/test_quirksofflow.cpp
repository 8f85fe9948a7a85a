// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Oddities of real machines in the status, rates and times, one test for each.
class QuirksOfFlowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // status
    void isChargedWhenUnknownAndFull();
    void isChargedWhenNotChargingNearTheTop();
    void isNotChargedWhenHeldBelow();
    void isNotChargingWhenIdleAndUnknown();
    void isFullAtAnyPercentageAndCurrent();
    // rates
    void takesTheMagnitudeOfANegativeRate();
    void hasNoTimeAtARateOfZero();
    void hasNoTimeAtTheNoiseOfAnIdleMachine();
    void hasNoTimeAtARateOfNonsense();
    // sentinels and dirty text
    void hasNoTimeAtTheSentinelOf65535Minutes();
};

void QuirksOfFlowTest::isChargedWhenUnknownAndFull()
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

void QuirksOfFlowTest::isChargedWhenNotChargingNearTheTop()
{
    Laptop thinkpad("thinkpad-e590");
    QVERIFY(thinkpad.fresh(u"FullyCharged").toBool());
    Laptop board("olimex-axp20x-battery");
    QVERIFY(board.fresh(u"FullyCharged").toBool());
}

void QuirksOfFlowTest::isNotChargedWhenHeldBelow()
{
    for (const char *machine : { "microsoft-surface-pro7", "thinkpad-dual-01av425-01av493" }) {
        Laptop laptop(machine);
        QCOMPARE(laptop.fresh(u"FullyCharged"), QVariant(false));
        QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
        QVERIFY(laptop.absent(u"TimeRemaining"));
    }
}

void QuirksOfFlowTest::isNotChargingWhenIdleAndUnknown()
{
    Laptop held("dell-70n2f95-biosthreshold-tlp621");
    held.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
    QCOMPARE(held.fresh(u"IsCharging"), QVariant(false));
    QCOMPARE(held.fresh(u"FullyCharged"), QVariant(false));
    // Whichever way the power flows, it does not report Charging.
    held.sysfs.set(u"BAT0"_s, u"current_now"_s, "1500000");
    QCOMPARE(held.fresh(u"IsCharging"), QVariant(false));
    QVERIFY(held.absent(u"TimeRemaining"));
}

void QuirksOfFlowTest::isFullAtAnyPercentageAndCurrent()
{
    Laptop fujitsu("fujitsu-cmb1");
    QVERIFY(fujitsu.fresh(u"FullyCharged").toBool());
    Laptop asus("asus-f5-2008-mixed");
    QVERIFY(asus.fresh(u"FullyCharged").toBool());
    QVERIFY(asus.absent(u"TimeRemaining"));
}

void QuirksOfFlowTest::takesTheMagnitudeOfANegativeRate()
{
    Laptop laptop("samsung-sr-real-battery");
    laptop.sysfs.set(u"BAT1"_s, u"current_now"_s, "-692000");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 109);
    QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
    Laptop charging("framework13-frangwa");
    charging.sysfs.set(u"BAT1"_s, u"current_now"_s, "-159000");
    QCOMPARE(charging.fresh(u"TimeRemaining").toInt(), 6);
}

void QuirksOfFlowTest::hasNoTimeAtARateOfZero()
{
    Laptop discharging("hp-pavilion-primary");
    QVERIFY(discharging.absent(u"TimeRemaining"));
    Laptop charging("orangepi-bq27541");
    QVERIFY(charging.absent(u"TimeRemaining"));
}

void QuirksOfFlowTest::hasNoTimeAtTheNoiseOfAnIdleMachine()
{
    Laptop laptop("compal-laptop-ups-mouse-keyboard");
    QVERIFY(laptop.fresh(u"IsCharging").toBool());
    QVERIFY(laptop.absent(u"TimeRemaining"));
    laptop.sysfs.set(u"BAT1"_s, u"power_now"_s, "99000");
    QVERIFY(laptop.absent(u"TimeRemaining"));
}

void QuirksOfFlowTest::hasNoTimeAtARateOfNonsense()
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

void QuirksOfFlowTest::hasNoTimeAtTheSentinelOf65535Minutes()
{
    Laptop laptop("chromebook-juniper-sbs");
    laptop.sysfs.set(u"sbs-12-000b"_s, u"status"_s, "Discharging");
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QVERIFY(laptop.absent(u"AvgTimeToEmpty"));
    // The time may still be computed from the rate.
    laptop.sysfs.set(u"sbs-12-000b"_s, u"current_now"_s, "-426200");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 599);
}

FERRIN_TEST(QCoreApplication, QuirksOfFlowTest)
#include "test_quirksofflow.moc"
