// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/platform/sysfs/laptop.h"

#include <QTest>

/// The laptop for tests of a broken sysfs, and what must hold before and after it breaks.
namespace ferrin::test {

inline void makeLaptop(FakeSysfs &sysfs)
{
    sysfs.supply(QStringLiteral("BAT0"),
                 { { "type", "Battery" },
                   { "status", "Discharging" },
                   { "present", "1" },
                   { "capacity", "50" },
                   { "energy_now", "25000000" },
                   { "energy_full", "50000000" },
                   { "energy_full_design", "55000000" },
                   { "power_now", "10000000" },
                   { "voltage_min_design", "10000000" },
                   { "voltage_now", "11000000" },
                   { "cycle_count", "123" },
                   { "temp", "301" },
                   { "serial_number", "AB12" },
                   { "health", "Good" } });
    sysfs.supply(QStringLiteral("AC"), { { "type", "Mains" }, { "online", "0" } });
}

inline void expectTheLaptop(Laptop &laptop)
{
    QCOMPARE(laptop.fresh(u"CurrentCapacity").toInt(), 50);
    QCOMPARE(laptop.said(u"AppleRawMaxCapacity").toInt(), 5000);
    // The shown time runs down by itself while nothing contradicts it.
    QVERIFY(std::abs(laptop.said(u"TimeRemaining").toInt() - 150) <= 8);
    QCOMPARE(laptop.said(u"ExternalConnected"), QVariant(false));
}

inline void expectSanity(Laptop &laptop)
{
    const QVariant charge = laptop.fresh(u"CurrentCapacity");
    QVERIFY(!charge.isValid() || (charge.toInt() >= 0 && charge.toInt() <= 100));
    const QVariant maximum = laptop.said(u"MaxCapacity");
    QVERIFY(!maximum.isValid() || maximum.toInt() == 100);
    const QVariant minutes = laptop.said(u"TimeRemaining");
    QVERIFY(!minutes.isValid() || (minutes.toLongLong() >= 0 && minutes.toLongLong() <= 2880));
    const QVariant full = laptop.said(u"AppleRawMaxCapacity");
    QVERIFY(!full.isValid() || (full.toLongLong() >= 0 && full.toLongLong() <= 1'000'000));
    const QVariant degrees = laptop.said(u"Temperature");
    QVERIFY(!degrees.isValid() || (degrees.toInt() >= -4000 && degrees.toInt() <= 12'000));
    const QVariant cycles = laptop.said(u"CycleCount");
    QVERIFY(!cycles.isValid() || (cycles.toInt() > 0 && cycles.toInt() <= 10'000));
    const QVariantMap adapter = laptop.said(u"AdapterDetails").toMap();
    const QVariant watts = adapter.value(QStringLiteral("Watts"));
    QVERIFY(!watts.isValid() || (watts.toInt() > 0 && watts.toInt() <= 500));
}

} // namespace ferrin::test
