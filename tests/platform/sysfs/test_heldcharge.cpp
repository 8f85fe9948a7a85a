// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/heldcharge.h"
#include "tests/platform/sysfs/laptop.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::Laptop;

namespace {

// On external power.
void fill(Laptop &laptop, const QByteArray &status, const QByteArray &percent,
          const QByteArray &limit = {}, const QByteArray &power = "0")
{
    laptop.sysfs.supply(u"BAT0"_s,
                        { { "type", "Battery" },
                          { "status", status },
                          { "capacity", percent },
                          { "energy_full", "50000000" },
                          { "energy_now", QByteArray::number(percent.toInt() * 500000) },
                          { "power_now", power } });
    if (!limit.isEmpty())
        laptop.sysfs.set(u"BAT0"_s, u"charge_control_end_threshold"_s, limit);
    laptop.sysfs.supply(u"AC"_s, { { "type", "Mains" }, { "online", "1" } });
}

} // namespace

class HeldChargeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isHeldAtItsLimit()
    {
        Laptop laptop;
        fill(laptop, "Not charging", "80", "80");
        QCOMPARE(laptop.fresh(u"ChargingHeld"), QVariant(true));
        QCOMPARE(laptop.said(u"ChargeLimit").toInt(), 80);
        QCOMPARE(laptop.said(u"FullyCharged"), QVariant(false));
        QCOMPARE(laptop.said(u"IsCharging"), QVariant(false));
        QVERIFY(!laptop.said(u"TimeRemaining").isValid());
    }

    void isHeldAtItsLimitByWhateverWord_data()
    {
        QTest::addColumn<QByteArray>("status");
        for (const char *word : { "Not charging", "Unknown", "Full", "Discharging" })
            QTest::newRow(word) << QByteArray(word);
    }

    void isHeldAtItsLimitByWhateverWord()
    {
        QFETCH(QByteArray, status);
        Laptop laptop;
        fill(laptop, status, "79", "80");
        QCOMPARE(laptop.fresh(u"ChargingHeld"), QVariant(true));
        QCOMPARE(laptop.said(u"ChargeLimit").toInt(), 80);
    }

    // It is not charging because of the limit, but it is not at it.
    void isHeldElsewhereWhenTheLimitWasLoweredBelowTheCharge()
    {
        Laptop laptop;
        fill(laptop, "Not charging", "92", "60");
        QCOMPARE(laptop.fresh(u"ChargingHeld"), QVariant(true));
        QVERIFY(!laptop.said(u"ChargeLimit").isValid());
    }

    void isHeldWithoutALimit()
    {
        Laptop laptop;
        fill(laptop, "Not charging", "62");
        QCOMPARE(laptop.fresh(u"ChargingHeld"), QVariant(true));
        QVERIFY(!laptop.said(u"ChargeLimit").isValid());
    }

    void reallyDischargesBesideAWeakAdapter()
    {
        Laptop laptop;
        fill(laptop, "Discharging", "80", "80", "6000000");
        QCOMPARE(laptop.fresh(u"ChargingHeld"), QVariant(false));
        QCOMPARE(laptop.said(u"ExternalConnected"), QVariant(true));
        QCOMPARE(laptop.said(u"IsCharging"), QVariant(false));
        QVERIFY(laptop.said(u"AvgTimeToEmpty").isValid());
    }

    void isFullAtNinetyFiveWithoutALimit()
    {
        Laptop laptop;
        fill(laptop, "Not charging", "96");
        QCOMPARE(laptop.fresh(u"ChargingHeld"), QVariant(false));
        QCOMPARE(laptop.said(u"FullyCharged"), QVariant(true));
    }

    void isNotHeldOnBatteryNorWhileCharging()
    {
        Laptop charging;
        fill(charging, "Charging", "80", "80", "6000000");
        QCOMPARE(charging.fresh(u"ChargingHeld"), QVariant(false));
        Laptop unplugged;
        fill(unplugged, "Not charging", "80", "80");
        unplugged.sysfs.set(u"AC"_s, u"online"_s, "0");
        QCOMPARE(unplugged.fresh(u"ChargingHeld"), QVariant(false));
    }

    void isFoundOnALaptopWhoseSlotIsStillEmpty()
    {
        Laptop laptop;
        const auto service = [&laptop] {
            laptop.registry().expire();
            return laptop.registry().matchingService({ u"AppleSmartBattery"_s });
        };
        QCOMPARE(service(), 0U);
        laptop.sysfs.write(u"class/dmi/id/chassis_type"_s, "3");
        QCOMPARE(service(), 0U);
        laptop.sysfs.write(u"class/dmi/id/chassis_type"_s, "10");
        QVERIFY(service() != 0);
        QVERIFY(laptop.absent(u"CurrentCapacity"));
        fill(laptop, "Discharging", "80");
        QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 80);
    }
};

FERRIN_TEST(QCoreApplication, HeldChargeTest)
#include "test_heldcharge.moc"
