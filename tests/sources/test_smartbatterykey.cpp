// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/smartbatterykey.h"
#include "tests/support/testmain.h"

#include <QStringList>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class SmartBatteryKeyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheFiguresInTheirOrder();
};

void SmartBatteryKeyTest::namesTheFiguresInTheirOrder()
{
    QStringList names;
    for (int i = 0; i <= static_cast<int>(SmartBatteryKey::adapterVoltage); ++i)
        names.append(rawValue(static_cast<SmartBatteryKey>(i)));
    const QStringList expected {
        u"ExternalConnected"_s,
        u"IsCharging"_s,
        u"FullyCharged"_s,
        u"AppleRawCurrentCapacity"_s,
        u"AppleRawMaxCapacity"_s,
        u"CurrentCapacity"_s,
        u"CycleCount"_s,
        u"DesignCapacity"_s,
        u"DesignCycleCount9C"_s,
        u"MaxCapacity"_s,
        u"Temperature"_s,
        u"TemperatureinC"_s,
        u"TemperatureInF"_s,
        u"TimeRemaining"_s,
        u"TimeRemainingInHs"_s,
        u"TimeRemainingInM"_s,
        u"AvgTimeToEmpty"_s,
        u"AvgTimeToFull"_s,
        u"Charge"_s,
        u"Serial"_s,
        u"Watts"_s,
        u"Name"_s,
        u"Manufacturer"_s,
        u"Current"_s,
        u"AdapterVoltage"_s,
    };
    QCOMPARE(names, expected);
    QCOMPARE(rawValue(SmartBatteryKey::temperatureInC), u"TemperatureinC"_s);
    QCOMPARE(rawValue(SmartBatteryKey::charge), u"Charge"_s);
}

FERRIN_TEST(QCoreApplication, SmartBatteryKeyTest)
#include "test_smartbatterykey.moc"
