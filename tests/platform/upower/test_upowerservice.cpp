// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/upower/serviceonthebus.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The service with a daemon that works correctly.
class UPowerServiceTest : public ServiceOnTheBus
{
    Q_OBJECT

private Q_SLOTS:
    void hasThePictureAtOnceWhenTheDaemonIsThere();
    void asksNothingForASnapshot();
    void keepsASnapshotAsItWasTaken();
    void describesNothingOutsideASnapshot();
    void followsPropertiesThatChange();
    void asksAnewAboutADeviceThatOnlySaysItChanged();
    void followsDevicesThatComeAndGo();
    void leavesOutABatteryThatIsTakenOut();
    void leavesOutPeripheralsAndTheSummary();
    void hasNoSourcesOnAMachineWithoutABattery();
    void putsThePackInUseFirst();
    void reportsOnlyChangesOfThePowerState();
    void isStillEstimatingForTenSecondsAfterUnplugging();
    void isStillEstimatingInTheNewDirectionBeforeTheDaemonNoticed();
    void isStillEstimatingAfterWaking();
    void doesNotSettleWhileExternalPowerIsUnknown();
};

void UPowerServiceTest::hasThePictureAtOnceWhenTheDaemonIsThere()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    const QVariantMap expected {
        { u"Type"_s, u"InternalBattery"_s },
        { u"Name"_s, u"DELL 70N2F95"_s },
        { u"Time to Empty"_s, 60 },
        { u"Time to Full Charge"_s, 0 },
        { u"Current Capacity"_s, 50 },
        { u"Max Capacity"_s, 100 },
        { u"Is Charging"_s, false },
        { u"Is Present"_s, true },
        { u"Power Source State"_s, u"Battery Power"_s },
    };
    QCOMPARE(pictureOf(service.get()), std::optional(QList<QVariantMap> { expected }));
}

void UPowerServiceTest::asksNothingForASnapshot()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    const uint before = m_daemon->questions();
    for (int time = 0; time < 100; ++time) {
        QCOMPARE(namesOf(service.get()), dell());
        QCoreApplication::processEvents();
    }
    QCOMPARE(m_daemon->questions(), before);
    QCOMPARE(service->copyInfo(), service->copyInfo());
}

void UPowerServiceTest::keepsASnapshotAsItWasTaken()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    const PowerSourcesService::Snapshot snapshot = service->copyInfo();
    m_daemon->removeDevice(u"battery_BAT0"_s);
    QTRY_COMPARE(namesOf(service.get()), QStringList());
    QCOMPARE(service->copyList(snapshot), std::optional(QList<int> { 0 }));
    QCOMPARE(service->description(snapshot, 0).toMap().value(u"Name"_s), QVariant(dell().first()));
}

void UPowerServiceTest::describesNothingOutsideASnapshot()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    const PowerSourcesService::Snapshot snapshot = service->copyInfo();
    QVERIFY(service->description(snapshot, 0).isValid());
    QVERIFY(!service->description(snapshot, 1).isValid());
    QVERIFY(!service->description(snapshot, -1).isValid());
    QVERIFY(!service->description({}, 0).isValid());
    QVERIFY(!service->copyList({}).has_value());
}

void UPowerServiceTest::followsPropertiesThatChange()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"TimeToEmpty"_s, qlonglong(1800) } });
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(30));
    m_daemon->setDevice(u"battery_BAT0"_s,
                        { { u"State"_s, 1U }, { u"TimeToFull"_s, qlonglong(600) } });
    QTRY_COMPARE(factOf(service.get(), u"Time to Full Charge"_s), QVariant(10));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(0));
}

void UPowerServiceTest::asksAnewAboutADeviceThatOnlySaysItChanged()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    m_daemon->setDeviceQuietly(u"battery_BAT0"_s, { { u"TimeToEmpty"_s, qlonglong(1800) } });
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(30));
}

void UPowerServiceTest::followsDevicesThatComeAndGo()
{
    startDaemon();
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(namesOf(service.get()), QStringList());
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    QTRY_COMPARE(namesOf(service.get()), dell());
    m_daemon->removeDevice(u"battery_BAT0"_s);
    QTRY_COMPARE(namesOf(service.get()), QStringList());
    m_daemon->setDevice(u"battery_BAT0"_s, battery({ { u"Model"_s, u"another"_s } }));
    QTRY_COMPARE(namesOf(service.get()), QStringList(u"another"_s));
}

void UPowerServiceTest::leavesOutABatteryThatIsTakenOut()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"IsPresent"_s, false } });
    QTRY_COMPARE(namesOf(service.get()), QStringList());
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"IsPresent"_s, true } });
    QTRY_COMPARE(namesOf(service.get()), dell());
}

void UPowerServiceTest::leavesOutPeripheralsAndTheSummary()
{
    startDaemon();
    const QVariantMap ups = battery({ { u"Type"_s, 3U },
                                      { u"Model"_s, u"CP550HGa"_s },
                                      { u"State"_s, 4U },
                                      { u"Percentage"_s, 100.0 },
                                      { u"TimeToEmpty"_s, qlonglong(2250) } });
    m_daemon->setDevice(u"DisplayDevice"_s, ups);
    m_daemon->setDevice(u"battery_BAT1"_s, battery({ { u"Model"_s, u"PABAS0241231"_s } }));
    m_daemon->setDevice(u"keyboard_0003o046Do2010x0009"_s,
                        battery({ { u"Type"_s, 6U }, { u"PowerSupply"_s, false } }));
    m_daemon->setDevice(u"line_power_ACAD"_s, battery({ { u"Type"_s, 1U } }));
    m_daemon->setDevice(u"mouse_0003o046Do101Ax0008"_s, mouse());
    m_daemon->setDevice(u"mouse_that_calls_itself_a_battery"_s,
                        battery({ { u"PowerSupply"_s, false } }));
    m_daemon->setDevice(u"ups_hiddev3"_s, ups);
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(namesOf(service.get()), QStringList({ u"PABAS0241231"_s, u"CP550HGa"_s }));
    const auto picture = pictureOf(service.get());
    QCOMPARE(picture->at(0).value(u"Type"_s), QVariant(u"InternalBattery"_s));
    QCOMPARE(picture->at(1).value(u"Type"_s), QVariant(u"UPS"_s));
}

void UPowerServiceTest::hasNoSourcesOnAMachineWithoutABattery()
{
    startDaemon();
    m_daemon->setDevice(u"DisplayDevice"_s, battery({ { u"Type"_s, 0U } }));
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(pictureOf(service.get()), std::optional(QList<QVariantMap>()));
}

void UPowerServiceTest::putsThePackInUseFirst()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s,
                        battery({ { u"Model"_s, u"01AV425"_s }, { u"State"_s, 6U } }));
    m_daemon->setDevice(u"battery_BAT1"_s, battery({ { u"Model"_s, u"01AV493"_s } }));
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(namesOf(service.get()), QStringList({ u"01AV493"_s, u"01AV425"_s }));
    m_daemon->setDevice(u"battery_BAT1"_s, { { u"State"_s, 3U } });
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"State"_s, 2U } });
    QTRY_COMPARE(namesOf(service.get()), QStringList({ u"01AV425"_s, u"01AV493"_s }));
}

void UPowerServiceTest::reportsOnlyChangesOfThePowerState()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    const QSignalSpy spy(service.get(), &UPowerService::powerStateChanged);
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Percentage"_s, 49.0 }, { u"State"_s, 2U } });
    QTRY_COMPARE(factOf(service.get(), u"Current Capacity"_s), QVariant(49));
    m_daemon->setDevice(u"mouse"_s, mouse());
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Percentage"_s, 48.0 } });
    QTRY_COMPARE(factOf(service.get(), u"Current Capacity"_s), QVariant(48));
    QCOMPARE(spy.count(), 0);
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"State"_s, 1U } });
    QTRY_COMPARE(spy.count(), 1);
    m_daemon->removeDevice(u"battery_BAT0"_s);
    QTRY_COMPARE(spy.count(), 2);
}

void UPowerServiceTest::isStillEstimatingForTenSecondsAfterUnplugging()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_externalPower = true;
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    const PowerSourcesService::Snapshot before = service->copyInfo();
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
    m_externalPower = false;
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(-1));
    QCOMPARE(factOf(service.get(), u"Time to Full Charge"_s), QVariant(0));
    QCOMPARE(service->description(before, 0).toMap().value(u"Time to Empty"_s), QVariant(-1));
    m_time += 9s;
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(-1));
    m_time += 1s;
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
}

void UPowerServiceTest::isStillEstimatingInTheNewDirectionBeforeTheDaemonNoticed()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_externalPower = false;
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
    m_externalPower = true;
    QCOMPARE(factOf(service.get(), u"Time to Full Charge"_s), QVariant(-1));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(0));
    service->settleAfterWaking();
    QCOMPARE(factOf(service.get(), u"Time to Full Charge"_s), QVariant(-1));
}

void UPowerServiceTest::isStillEstimatingAfterWaking()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    service->settleAfterWaking();
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(-1));
    m_time += 10s;
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
}

void UPowerServiceTest::doesNotSettleWhileExternalPowerIsUnknown()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_externalPower = false;
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
    m_externalPower.reset();
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
    m_externalPower = false;
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
}

FERRIN_TEST(QCoreApplication, UPowerServiceTest)
#include "test_upowerservice.moc"
