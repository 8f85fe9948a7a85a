// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

/// Batteries that lack attributes, or whose words and units are not the kernel's: their other
/// figures must not be lost, and none may be computed in a wrong unit.
class QuirksOfWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheStatusInAnyCase_data();
    void readsTheStatusInAnyCase();
    void keepsItsStateWhereOnPowerNobodyKnowsTheDirection_data();
    void keepsItsStateWhereOnPowerNobodyKnowsTheDirection();
    void dischargesOnBatteryWithoutAStatus();
    void isChargedWithoutAStatusAtTheTop();
    void hasNoCapacityInMilliampHoursTakenForMicroampHours();
    void hasNoCapacityInMilliwattHoursTakenForMicrowattHours();
    void keepsTheCapacityOfASmallPack();
    void takesTheSentinelOfSixteenBitsForNoTime();
};

namespace {

void fill(Laptop &laptop, const char *online, const char *status)
{
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", online } });
    laptop.sysfs.supply(u"BAT0"_s,
                        { { "type", "Battery" },
                          { "status", status },
                          { "capacity", "60" },
                          { "energy_now", "30000000" },
                          { "energy_full", "50000000" },
                          { "energy_full_design", "57000000" },
                          { "power_now", "8000000" },
                          { "voltage_min_design", "11520000" } });
}

} // namespace

void QuirksOfWordsTest::readsTheStatusInAnyCase_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<bool>("charging");
    QTest::addColumn<bool>("full");
    QTest::newRow("charging") << QByteArray("charging") << true << false;
    QTest::newRow("CHARGING") << QByteArray("CHARGING") << true << false;
    QTest::newRow("Not Charging") << QByteArray("Not Charging") << false << false;
    QTest::newRow("DISCHARGING") << QByteArray("DISCHARGING  ") << false << false;
    QTest::newRow("full") << QByteArray("full") << false << true;
}

void QuirksOfWordsTest::readsTheStatusInAnyCase()
{
    QFETCH(QByteArray, status);
    Laptop laptop;
    fill(laptop, "1", status.constData());
    QTEST(laptop.fresh(u"IsCharging").toBool(), "charging");
    QTEST(laptop.said(u"FullyCharged").toBool(), "full");
}

void QuirksOfWordsTest::keepsItsStateWhereOnPowerNobodyKnowsTheDirection_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("a rate that may go either way") << QString();
    QTest::newRow("no rate") << u"power_now"_s;
    QTest::newRow("no status") << u"status"_s;
}

void QuirksOfWordsTest::keepsItsStateWhereOnPowerNobodyKnowsTheDirection()
{
    QFETCH(QString, missing);
    Laptop laptop;
    fill(laptop, "1", "Unknown");
    if (!missing.isEmpty())
        laptop.sysfs.remove(u"class/power_supply/BAT0/"_s + missing);
    QCOMPARE(laptop.fresh(u"ExternalConnected"), QVariant(true));
    QCOMPARE(laptop.said(u"IsCharging"), QVariant(false));
    QCOMPARE(laptop.said(u"FullyCharged"), QVariant(false));
    QCOMPARE(laptop.said(u"CurrentCapacity").toInt(), 60);
    QVERIFY(!laptop.said(u"TimeRemaining").isValid());
}

void QuirksOfWordsTest::dischargesOnBatteryWithoutAStatus()
{
    Laptop laptop;
    fill(laptop, "0", "");
    QCOMPARE(laptop.fresh(u"IsCharging"), QVariant(false));
    QCOMPARE(laptop.said(u"FullyCharged"), QVariant(false));
}

void QuirksOfWordsTest::isChargedWithoutAStatusAtTheTop()
{
    Laptop laptop;
    fill(laptop, "1", "");
    laptop.sysfs.set(u"BAT0"_s, u"capacity"_s, "96");
    laptop.sysfs.set(u"BAT0"_s, u"energy_now"_s, "48000000");
    QCOMPARE(laptop.fresh(u"FullyCharged"), QVariant(true));
}

void QuirksOfWordsTest::hasNoCapacityInMilliampHoursTakenForMicroampHours()
{
    Laptop laptop("own-gauge-in-milliamphours");
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"AppleRawCurrentCapacity"));
    QVERIFY(laptop.absent(u"DesignCapacity"));
    QVERIFY(laptop.absent(u"TimeRemaining"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 60);
}

void QuirksOfWordsTest::hasNoCapacityInMilliwattHoursTakenForMicrowattHours()
{
    Laptop laptop;
    fill(laptop, "0", "Discharging");
    laptop.sysfs.set(u"BAT0"_s, u"energy_now"_s, "30000");
    laptop.sysfs.set(u"BAT0"_s, u"energy_full"_s, "50000");
    laptop.sysfs.set(u"BAT0"_s, u"energy_full_design"_s, "57000");
    QVERIFY(laptop.absent(u"AppleRawMaxCapacity"));
    QVERIFY(laptop.absent(u"DesignCapacity"));
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 60);
}

void QuirksOfWordsTest::keepsTheCapacityOfASmallPack()
{
    Laptop laptop("own-gauge-in-milliamphours");
    laptop.sysfs.set(u"BAT0"_s, u"charge_full"_s, "880000");
    QCOMPARE(laptop.fresh(u"AppleRawMaxCapacity").toInt(), 880);
}

void QuirksOfWordsTest::takesTheSentinelOfSixteenBitsForNoTime()
{
    Laptop laptop;
    fill(laptop, "0", "Discharging");
    laptop.sysfs.set(u"BAT0"_s, u"time_to_empty_avg"_s, "65535");
    QCOMPARE(laptop.fresh(u"TimeRemaining").toInt(), 225);
    Laptop other;
    fill(other, "0", "Discharging");
    other.sysfs.set(u"BAT0"_s, u"time_to_empty_avg"_s, "65535");
    other.sysfs.set(u"BAT0"_s, u"time_to_empty_now"_s, "12000");
    QCOMPARE(other.fresh(u"TimeRemaining").toInt(), 200);
}

FERRIN_TEST(QCoreApplication, QuirksOfWordsTest)
#include "test_quirksofwords.moc"
