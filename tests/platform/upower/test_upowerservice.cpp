// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerservice.h"
#include "tests/platform/upower/fakeupower.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>
#include <optional>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The descriptions in their order; absent when there is no snapshot.
std::optional<QList<QVariantMap>> pictureOf(UPowerService *service)
{
    const PowerSourcesService::Snapshot snapshot = service->copyInfo();
    const auto handles = service->copyList(snapshot);
    if (!handles)
        return std::nullopt;
    QList<QVariantMap> descriptions;
    for (const PowerSourcesService::SourceHandle handle : *handles)
        descriptions.append(service->description(snapshot, handle).toMap());
    return descriptions;
}

/// The names of the sources in their order; "none" when there is no snapshot.
QStringList namesOf(UPowerService *service)
{
    const auto descriptions = pictureOf(service);
    if (!descriptions)
        return { u"none"_s };
    QStringList names;
    for (const QVariantMap &description : *descriptions)
        names.append(description.value(u"Name"_s).toString());
    return names;
}

QVariant factOf(UPowerService *service, const QString &key)
{
    return pictureOf(service).value_or(QList<QVariantMap>()).value(0).value(key);
}

const QString connected = u"info: Connection to UPower successful"_s;
const QStringList dell { u"DELL 70N2F95"_s };
const QStringList none { u"none"_s };

} // namespace

class UPowerServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

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
    void tellsWhenThePowerStateChangesAndOnlyThen();

    void livesWithoutTheDaemon();
    void takesUpADaemonThatStartsLate();
    void startsADaemonThatTheBusCanStart();
    void forgetsADaemonThatDiedAndTakesUpTheNext();
    void isNotStoppedByADaemonThatHangsFromTheStart();
    void isNotStoppedByADaemonThatHangsLater();
    void forgetsADaemonThatDiesWhileItHangs();
    void mayGoWhileTheDaemonOwesAnAnswer();
    void dropsAPropertyOfAWrongTypeAndKeepsTheRest_data();
    void dropsAPropertyOfAWrongTypeAndKeepsTheRest();
    void survivesAnswersOfAnotherForm();
    void survivesADaemonThatRefusesToAnswer();
    void findsTheBatteryAmongTenThousandDevices();
    void keepsABoundedNumberOfTenThousandBatteries();
    void survivesADeviceThatIsRemovedWhileItIsAskedAbout();
    void survivesTenThousandDevicesThatComeAndGo();
    void believesNobodyButTheDaemon();
    void livesWithoutABus();
    void livesOnWhenTheBusDies();

    void isStillEstimatingForTenSecondsAfterUnplugging();
    void isStillEstimatingInTheNewDirectionBeforeTheDaemonNoticed();

private:
    void startDaemon();
    /// The lines since the test began; for waiting until they come.
    [[nodiscard]] const QStringList &allLines();
    [[nodiscard]] std::unique_ptr<UPowerService> makeService();

    std::chrono::steady_clock::time_point m_time;
    std::optional<LogCapture> m_log;
    QStringList m_lines;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeUPower> m_daemon;
};

void UPowerServiceTest::init()
{
    m_log.emplace();
    m_lines.clear();
    m_bus = std::make_unique<PrivateBus>();
}

void UPowerServiceTest::cleanup()
{
    m_daemon.reset();
    m_bus.reset();
    m_log.reset();
}

void UPowerServiceTest::startDaemon()
{
    m_daemon = std::make_unique<FakeUPower>(m_bus->address(), m_bus->connect());
}

const QStringList &UPowerServiceTest::allLines()
{
    return m_lines += m_log->take();
}

std::unique_ptr<UPowerService> UPowerServiceTest::makeService()
{
    return std::make_unique<UPowerService>(m_bus->connect(), [this] { return m_time; });
}

void UPowerServiceTest::hasThePictureAtOnceWhenTheDaemonIsThere()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
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
    QCOMPARE(m_log->take(), QStringList(connected));
    const uint before = m_daemon->questions();
    for (int time = 0; time < 100; ++time) {
        QCOMPARE(namesOf(service.get()), dell);
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
    QCOMPARE(m_log->take(), QStringList(connected));
    const PowerSourcesService::Snapshot snapshot = service->copyInfo();
    m_daemon->removeDevice(u"battery_BAT0"_s);
    QTRY_COMPARE(namesOf(service.get()), QStringList());
    QCOMPARE(service->copyList(snapshot), std::optional(QList<int> { 0 }));
    QCOMPARE(service->description(snapshot, 0).toMap().value(u"Name"_s), QVariant(dell.first()));
}

void UPowerServiceTest::describesNothingOutsideASnapshot()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
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
    QCOMPARE(m_log->take(), QStringList(connected));
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
    QCOMPARE(m_log->take(), QStringList(connected));
    m_daemon->setDeviceQuietly(u"battery_BAT0"_s, { { u"TimeToEmpty"_s, qlonglong(1800) } });
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(30));
}

void UPowerServiceTest::followsDevicesThatComeAndGo()
{
    startDaemon();
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    QCOMPARE(namesOf(service.get()), QStringList());
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    QTRY_COMPARE(namesOf(service.get()), dell);
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
    QCOMPARE(m_log->take(), QStringList(connected));
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"IsPresent"_s, false } });
    QTRY_COMPARE(namesOf(service.get()), QStringList());
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"IsPresent"_s, true } });
    QTRY_COMPARE(namesOf(service.get()), dell);
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
    QCOMPARE(m_log->take(), QStringList(connected));
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
    QCOMPARE(m_log->take(), QStringList(connected));
    QCOMPARE(pictureOf(service.get()), std::optional(QList<QVariantMap>()));
}

void UPowerServiceTest::putsThePackInUseFirst()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s,
                        battery({ { u"Model"_s, u"01AV425"_s }, { u"State"_s, 6U } }));
    m_daemon->setDevice(u"battery_BAT1"_s, battery({ { u"Model"_s, u"01AV493"_s } }));
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    QCOMPARE(namesOf(service.get()), QStringList({ u"01AV493"_s, u"01AV425"_s }));
    m_daemon->setDevice(u"battery_BAT1"_s, { { u"State"_s, 3U } });
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"State"_s, 2U } });
    QTRY_COMPARE(namesOf(service.get()), QStringList({ u"01AV425"_s, u"01AV493"_s }));
}

void UPowerServiceTest::tellsWhenThePowerStateChangesAndOnlyThen()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    const QSignalSpy spy(service.get(), &UPowerService::powerStateChanged);
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Percentage"_s, 49.0 }, { u"State"_s, 2U } });
    QTRY_COMPARE(factOf(service.get(), u"Current Capacity"_s), QVariant(49));
    m_daemon->setOnBattery(false);
    m_daemon->setDevice(u"mouse"_s, mouse());
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Percentage"_s, 48.0 } });
    QTRY_COMPARE(factOf(service.get(), u"Current Capacity"_s), QVariant(48));
    QCOMPARE(spy.count(), 0);
    m_daemon->setOnBattery(true);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<std::optional<bool>>(), std::optional(false));
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"State"_s, 1U } });
    QTRY_COMPARE(spy.count(), 2);
    m_daemon->removeDevice(u"battery_BAT0"_s);
    QTRY_COMPARE(spy.count(), 3);
}

void UPowerServiceTest::livesWithoutTheDaemon()
{
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(m_log->takeCount(u"error: UPower cannot be reached: "_s), 1);
}

void UPowerServiceTest::takesUpADaemonThatStartsLate()
{
    const auto service = makeService();
    QCOMPARE(m_log->takeCount(u"error: UPower cannot be reached: "_s), 1);
    const QSignalSpy spy(service.get(), &UPowerService::powerStateChanged);
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    QTRY_COMPARE(namesOf(service.get()), dell);
    QCOMPARE(m_log->take(), QStringList(connected));
    QVERIFY(spy.count() > 0);
}

void UPowerServiceTest::startsADaemonThatTheBusCanStart()
{
    m_bus->addService(u"org.freedesktop.UPower"_s,
                      FakeUPower::program() + u" --battery "_s + m_bus->address());
    const auto service = makeService();
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
    QCOMPARE(m_log->take(), QStringList(connected));
}

void UPowerServiceTest::forgetsADaemonThatDiedAndTakesUpTheNext()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    for (int time = 0; time < 3; ++time) {
        m_daemon.reset();
        QTRY_COMPARE(namesOf(service.get()), none);
        QCOMPARE(m_log->take(), QStringList(u"error: UPower has left the bus"_s));
        startDaemon();
        const QString name = u"battery %1"_s.arg(time);
        m_daemon->setDevice(u"battery_BAT0"_s, battery({ { u"Model"_s, name } }));
        QTRY_COMPARE(namesOf(service.get()), QStringList(name));
        QCOMPARE(m_log->take(), QStringList(connected));
    }
}

void UPowerServiceTest::isNotStoppedByADaemonThatHangsFromTheStart()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->hang();
    // Would never return if it waited for the answer, which comes only after resume().
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(m_log->take(), QStringList());
    m_time += 30s;
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(m_log->take(), QStringList(u"error: UPower does not answer"_s));
    m_daemon->resume();
    QTRY_COMPARE(namesOf(service.get()), dell);
    QCOMPARE(m_log->take(), QStringList(connected));
}

void UPowerServiceTest::isNotStoppedByADaemonThatHangsLater()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    m_daemon->hang();
    m_time += 30s;
    QCOMPARE(namesOf(service.get()), dell);
    m_daemon->resume();
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"TimeToEmpty"_s, qlonglong(600) } });
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(10));
}

void UPowerServiceTest::forgetsADaemonThatDiesWhileItHangs()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->hang();
    const auto service = makeService();
    m_daemon->kill();
    QTRY_COMPARE(allLines(), QStringList(u"error: UPower has left the bus"_s));
    QCOMPARE(namesOf(service.get()), none);
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    QTRY_COMPARE(namesOf(service.get()), dell);
    QCOMPARE(m_log->take(), QStringList(connected));
}

void UPowerServiceTest::mayGoWhileTheDaemonOwesAnAnswer()
{
    startDaemon();
    m_daemon->hang();
    makeService().reset();
    m_daemon->resume();
    QTRY_VERIFY(m_daemon->questions() > 0);
    QCoreApplication::processEvents();
}

void UPowerServiceTest::dropsAPropertyOfAWrongTypeAndKeepsTheRest_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("key");
    QTest::newRow("Percentage") << u"Percentage"_s << QVariant(50U) << u"Current Capacity"_s;
    QTest::newRow("State") << u"State"_s << QVariant(u"discharging"_s) << u"Is Charging"_s;
    QTest::newRow("IsPresent") << u"IsPresent"_s << QVariant(1U) << u"Is Present"_s;
    QTest::newRow("TimeToEmpty") << u"TimeToEmpty"_s << QVariant(3600.0) << u"Time to Empty"_s;
    QTest::newRow("Model") << u"Model"_s << QVariant(QVariantMap { { u"a"_s, 1 } }) << u"Name"_s;
}

void UPowerServiceTest::dropsAPropertyOfAWrongTypeAndKeepsTheRest()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(QString, key);
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery({ { u"NativePath"_s, QString() } }));
    const auto service = makeService();
    QVariantMap expected = pictureOf(service.get())->at(0);
    QCOMPARE(m_log->take(), QStringList(connected));
    QVERIFY(expected.remove(key) > 0);
    for (int time = 0; time < 3; ++time)
        m_daemon->setDevice(u"battery_BAT0"_s, { { property, value } });
    QTRY_COMPARE(pictureOf(service.get())->at(0), expected);
    QCOMPARE(m_log->take(),
             QStringList(u"error: UPower tells %1 in an unexpected type"_s.arg(property)));
}

void UPowerServiceTest::survivesAnswersOfAnotherForm()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->talkNonsense();
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(m_log->take(),
             QStringList({ u"error: UPower tells OnBattery in an unexpected type"_s,
                           u"error: UPower told its devices in an unexpected form"_s }));
    for (int number = 0; number < 3; ++number)
        m_daemon->setDevice(u"battery_BAT1%1"_s.arg(number), battery());
    QTRY_COMPARE(allLines(),
                 QStringList(u"error: UPower told about a device in an unexpected form"_s));
    QCOMPARE(namesOf(service.get()), none);
}

void UPowerServiceTest::survivesADaemonThatRefusesToAnswer()
{
    startDaemon();
    m_daemon->refuse(u"Not\n for you"_s);
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none);
    QCOMPARE(m_log->take(), QStringList(u"error: UPower does not tell its devices: Not for you"_s));
}

void UPowerServiceTest::findsTheBatteryAmongTenThousandDevices()
{
    startDaemon();
    m_daemon->addMany(u"a_mouse_"_s, 10'000, mouse());
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none);
    int turns = 0;
    QTimer otherWork;
    connect(&otherWork, &QTimer::timeout, this, [&turns] { ++turns; });
    otherWork.start(0ms);
    QTRY_COMPARE_WITH_TIMEOUT(namesOf(service.get()), dell, 120'000);
    QVERIFY(turns > 100);
    QCOMPARE(m_log->take(), QStringList(connected));
}

void UPowerServiceTest::keepsABoundedNumberOfTenThousandBatteries()
{
    startDaemon();
    m_daemon->addMany(u"battery_"_s, 10'000, battery());
    const auto service = makeService();
    QTRY_COMPARE_WITH_TIMEOUT(namesOf(service.get()).size(), 64, 120'000);
    QTRY_COMPARE(
        allLines(),
        QStringList({ connected, u"error: UPower tells of more devices than Ferrin looks at"_s }));
    m_daemon->setDevice(u"battery_0"_s, { { u"Model"_s, u"still followed"_s } });
    QTRY_COMPARE(namesOf(service.get()).first(), u"still followed"_s);
}

void UPowerServiceTest::survivesADeviceThatIsRemovedWhileItIsAskedAbout()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->setDevice(u"battery_BAT1"_s, battery());
    m_daemon->makeShy(u"battery_BAT1"_s);
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    QCOMPARE(namesOf(service.get()), dell);
    m_daemon->makeShy(u"battery_BAT2"_s);
    m_daemon->setDevice(u"battery_BAT2"_s, battery());
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Model"_s, u"still here"_s } });
    QTRY_COMPARE(namesOf(service.get()), QStringList(u"still here"_s));
}

void UPowerServiceTest::survivesTenThousandDevicesThatComeAndGo()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    for (int number = 0; number < 10'000; ++number) {
        const QString name = u"device_%1"_s.arg(number % 7);
        if (number % 3 == 2)
            m_daemon->removeDevice(name);
        else
            m_daemon->setDevice(name, number % 2 ? mouse() : battery());
        if (number % 100 == 0)
            QCoreApplication::processEvents();
    }
    for (int number = 0; number < 7; ++number)
        m_daemon->removeDevice(u"device_%1"_s.arg(number));
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Model"_s, u"still here"_s } });
    QTRY_COMPARE(namesOf(service.get()), QStringList(u"still here"_s));
}

void UPowerServiceTest::believesNobodyButTheDaemon()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    QDBusMessage lie
        = QDBusMessage::createSignal(FakeUPower::path(u"battery_BAT0"_s),
                                     u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
    lie.setArguments({ u"org.freedesktop.UPower.Device"_s,
                       QVariantMap { { u"TimeToEmpty"_s, qlonglong(600) } }, QStringList() });
    QDBusConnection liar = m_bus->connect();
    QVERIFY(liar.send(lie));
    // Whoever's message comes later in the bus' order is told later.
    QVERIFY(liar.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                     u"org.freedesktop.DBus"_s, u"GetId"_s))
                .type()
            == QDBusMessage::ReplyMessage);
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Percentage"_s, 20.0 } });
    QTRY_COMPARE(factOf(service.get(), u"Current Capacity"_s), QVariant(20));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
}

void UPowerServiceTest::livesWithoutABus()
{
    UPowerService service { QDBusConnection(u"there is no such connection"_s) };
    QCOMPARE(namesOf(&service), none);
    QCOMPARE(m_log->take(),
             QStringList(u"error: The system bus cannot be reached, so UPower cannot either"_s));
}

void UPowerServiceTest::livesOnWhenTheBusDies()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), dell);
    QCOMPARE(m_log->take(), QStringList(connected));
    m_bus->stop();
    QTRY_COMPARE(namesOf(service.get()), none);
    QTRY_COMPARE(allLines(), QStringList(u"error: UPower has left the bus"_s));
}

void UPowerServiceTest::isStillEstimatingForTenSecondsAfterUnplugging()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    const PowerSourcesService::Snapshot before = service->copyInfo();
    service->settle(false);
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
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected));
    service->settle(true);
    QCOMPARE(factOf(service.get(), u"Time to Full Charge"_s), QVariant(-1));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(0));
    service->settle(std::nullopt);
    QCOMPARE(factOf(service.get(), u"Time to Full Charge"_s), QVariant(-1));
}

QTEST_GUILESS_MAIN(UPowerServiceTest)
#include "test_upowerservice.moc"
