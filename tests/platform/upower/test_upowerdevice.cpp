// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerdescription.h"
#include "tests/platform/upower/devices.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <limits>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class UPowerDeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesEveryPropertyInUPowersOwnType();
    void leavesWhatIsNotInTheMapAsItIs();
    void dropsAValueOfAnotherTypeAndKeepsTheRest_data();
    void dropsAValueOfAnotherTypeAndKeepsTheRest();
    void takesNoNumberThatIsNone();
    void clampsThePercentage();
    void takesAStateThatItDoesNotKnowForUnknown();
    void shortensANameThatNobodyCanRead();
    void isNoPowerSourceWithoutItsKindOrItsPurpose();
    void isAPowerSourceUnlessItIsKnownToBeAbsent();
};

void UPowerDeviceTest::takesEveryPropertyInUPowersOwnType()
{
    UPowerDevice device;
    const QStringList wrong = device.update({ { u"Type"_s, 2U },
                                              { u"PowerSupply"_s, true },
                                              { u"IsPresent"_s, true },
                                              { u"State"_s, 1U },
                                              { u"Percentage"_s, 41.6 },
                                              { u"TimeToEmpty"_s, qlonglong(60) },
                                              { u"TimeToFull"_s, qlonglong(120) },
                                              { u"Model"_s, u" PABAS0241231 "_s },
                                              { u"NativePath"_s, u"BAT1"_s },
                                              { u"Luminosity"_s, u"never looked at"_s } });
    QCOMPARE(wrong, QStringList());
    QVERIFY(device.kind == UPowerKind::Battery);
    QVERIFY(device.state == UPowerState::Charging);
    QCOMPARE(device.powersSystem, std::optional(true));
    QCOMPARE(device.isPresent, std::optional(true));
    QCOMPARE(device.percentage, std::optional(42));
    QVERIFY(device.timeToEmpty == 60s);
    QVERIFY(device.timeToFull == 120s);
    QCOMPARE(device.model, std::optional(u"PABAS0241231"_s));
    QCOMPARE(device.nativePath, std::optional(u"BAT1"_s));
}

void UPowerDeviceTest::leavesWhatIsNotInTheMapAsItIs()
{
    UPowerDevice device = pack(UPowerState::Charging, 0s, 600s);
    device.update({ { u"Percentage"_s, 51.0 } });
    UPowerDevice expected = pack(UPowerState::Charging, 0s, 600s);
    expected.percentage = 51;
    QCOMPARE(device, expected);
}

void UPowerDeviceTest::dropsAValueOfAnotherTypeAndKeepsTheRest_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    const QVariantMap values {
        { u"Type"_s, u"battery"_s }, { u"PowerSupply"_s, 1U },          { u"IsPresent"_s, 1 },
        { u"State"_s, 2 },           { u"Percentage"_s, 50 },           { u"TimeToEmpty"_s, 3600 },
        { u"TimeToFull"_s, 0.0 },    { u"Model"_s, QByteArray("BAT") }, { u"NativePath"_s, false },
    };
    for (const auto &[name, value] : values.asKeyValueRange())
        QTest::newRow(qPrintable(name)) << name << value;
}

void UPowerDeviceTest::dropsAValueOfAnotherTypeAndKeepsTheRest()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    const QVariantMap good { { u"Type"_s, 2U },
                             { u"PowerSupply"_s, true },
                             { u"IsPresent"_s, true },
                             { u"State"_s, 2U },
                             { u"Percentage"_s, 50.0 },
                             { u"TimeToEmpty"_s, qlonglong(3600) },
                             { u"TimeToFull"_s, qlonglong(0) },
                             { u"Model"_s, u"BAT"_s },
                             { u"NativePath"_s, u"BAT0"_s } };
    QVariantMap without = good;
    without.remove(name);
    UPowerDevice expected;
    expected.update(without);

    UPowerDevice device;
    QCOMPARE(device.update(good), QStringList());
    QVERIFY(device != expected);
    QCOMPARE(device.update({ { name, value } }), QStringList(name));
    QCOMPARE(device, expected);
}

void UPowerDeviceTest::takesNoNumberThatIsNone()
{
    UPowerDevice device = pack(UPowerState::Charging);
    device.update({ { u"Percentage"_s, std::numeric_limits<double>::quiet_NaN() } });
    QCOMPARE(device.percentage, std::nullopt);
    device.update({ { u"Percentage"_s, std::numeric_limits<double>::infinity() } });
    QCOMPARE(device.percentage, std::nullopt);
}

void UPowerDeviceTest::clampsThePercentage()
{
    UPowerDevice device;
    device.update({ { u"Percentage"_s, 448.0 } });
    QCOMPARE(device.percentage, std::optional(100));
    device.update({ { u"Percentage"_s, -1e300 } });
    QCOMPARE(device.percentage, std::optional(0));
}

void UPowerDeviceTest::takesAStateThatItDoesNotKnowForUnknown()
{
    UPowerDevice device;
    device.update({ { u"State"_s, 7U } });
    QVERIFY(device.state == UPowerState::Unknown);
    device.update({ { u"State"_s, std::numeric_limits<uint>::max() } });
    QVERIFY(device.state == UPowerState::Unknown);
}

void UPowerDeviceTest::shortensANameThatNobodyCanRead()
{
    UPowerDevice device;
    device.update({ { u"Model"_s, QString(1'000'000, u'x') } });
    QCOMPARE(device.model, std::optional(QString(256, u'x')));
    device.update({ { u"Model"_s, u"  "_s } });
    QCOMPARE(device.model, std::nullopt);
}

void UPowerDeviceTest::isNoPowerSourceWithoutItsKindOrItsPurpose()
{
    UPowerDevice device = pack(UPowerState::Charging);
    QVERIFY(device.isPowerSource());
    device.kind = UPowerKind::Other;
    QVERIFY(!device.isPowerSource());
    QVERIFY(!device.mayPowerSystem());
    device.kind.reset();
    QVERIFY(!device.isPowerSource());
    QVERIFY(device.mayPowerSystem());
    device.kind = UPowerKind::Ups;
    device.powersSystem = false;
    QVERIFY(!device.mayPowerSystem());
    device.powersSystem.reset();
    QVERIFY(!device.isPowerSource());
    QVERIFY(device.mayPowerSystem());
}

void UPowerDeviceTest::isAPowerSourceUnlessItIsKnownToBeAbsent()
{
    UPowerDevice device = pack(UPowerState::Charging);
    device.isPresent.reset();
    QVERIFY(device.isPowerSource());
    QVERIFY(!describe(device, std::nullopt).contains(u"Is Present"_s));
    device.isPresent = false;
    QVERIFY(!device.isPowerSource());
}

FERRIN_TEST(QCoreApplication, UPowerDeviceTest)
#include "test_upowerdevice.moc"
