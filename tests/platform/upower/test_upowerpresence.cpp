// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/upower/serviceonthebus.h"
#include "tests/support/testmain.h"

#include <QDBusReply>
#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The number of rules by which the bus sends signals to the connection.
uint subscriptionsOf(const QDBusConnection &connection)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
        u"org.freedesktop.DBus.Debug.Stats"_s, u"GetConnectionStats"_s);
    question.setArguments({ connection.baseService() });
    const QDBusReply<QVariantMap> statistics = connection.call(question);
    return statistics.value().value(u"MatchRules"_s).toUInt();
}

} // namespace

/// The service while the daemon is missing, starts, exits and hangs.
class UPowerPresenceTest : public ServiceOnTheBus
{
    Q_OBJECT

private Q_SLOTS:
    void livesWithoutTheDaemon();
    void takesUpADaemonThatStartsLate();
    void startsADaemonThatTheBusCanStart();
    void forgetsADaemonThatDiedAndTakesUpTheNext();
    void isNotStoppedByADaemonThatHangsFromTheStart();
    void isNotStoppedByADaemonThatHangsLater();
    void forgetsADaemonThatDiesWhileItHangs();
    void mayGoWhileTheDaemonOwesAnAnswer();
    void isSilentAboutDevicesUntilAllAreDescribed();
    void unsubscribesFromADaemonThatHasGone();
    void livesWithoutABus();
    void livesOnWhenTheBusDies();
};

void UPowerPresenceTest::livesWithoutTheDaemon()
{
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(m_log->takeCount(u"error: Cannot start UPower: "_s), 1);
}

void UPowerPresenceTest::takesUpADaemonThatStartsLate()
{
    const auto service = makeService();
    QCOMPARE(m_log->takeCount(u"error: Cannot start UPower: "_s), 1);
    const QSignalSpy spy(service.get(), &UPowerService::powerStateChanged);
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    QTRY_COMPARE(namesOf(service.get()), dell());
    QCOMPARE(m_log->take(), QStringList(connected()));
    QVERIFY(spy.count() > 0);
}

void UPowerPresenceTest::startsADaemonThatTheBusCanStart()
{
    m_bus->addService(u"org.freedesktop.UPower"_s,
                      FakeUPower::program() + u" --battery "_s + m_bus->address());
    const auto service = makeService();
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
    QCOMPARE(m_log->take(), QStringList(connected()));
}

void UPowerPresenceTest::forgetsADaemonThatDiedAndTakesUpTheNext()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    for (int time = 0; time < 3; ++time) {
        m_daemon.reset();
        QTRY_COMPARE(namesOf(service.get()), none());
        QCOMPARE(m_log->take(), QStringList(u"error: UPower has left the bus"_s));
        startDaemon();
        const QString name = u"battery %1"_s.arg(time);
        m_daemon->setDevice(u"battery_BAT0"_s, battery({ { u"Model"_s, name } }));
        QTRY_COMPARE(namesOf(service.get()), QStringList(name));
        QCOMPARE(m_log->take(), QStringList(connected()));
    }
}

void UPowerPresenceTest::isNotStoppedByADaemonThatHangsFromTheStart()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->hang();
    // Would never return if it waited for the reply, which is sent after resume().
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(m_log->take(), QStringList());
    m_time += 30s;
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(m_log->take(), QStringList(u"error: UPower does not reply"_s));
    m_daemon->resume();
    QTRY_COMPARE(namesOf(service.get()), dell());
    QCOMPARE(m_log->take(), QStringList(connected()));
}

void UPowerPresenceTest::isNotStoppedByADaemonThatHangsLater()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    m_daemon->hang();
    m_time += 30s;
    QCOMPARE(namesOf(service.get()), dell());
    m_daemon->resume();
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"TimeToEmpty"_s, qlonglong(600) } });
    QTRY_COMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(10));
}

void UPowerPresenceTest::forgetsADaemonThatDiesWhileItHangs()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->hang();
    const auto service = makeService();
    m_daemon->kill();
    QTRY_COMPARE(allLines(), QStringList(u"error: UPower has left the bus"_s));
    QCOMPARE(namesOf(service.get()), none());
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    QTRY_COMPARE(namesOf(service.get()), dell());
    QCOMPARE(m_log->take(), QStringList(connected()));
}

void UPowerPresenceTest::mayGoWhileTheDaemonOwesAnAnswer()
{
    startDaemon();
    m_daemon->hang();
    makeService().reset();
    m_daemon->resume();
    QTRY_VERIFY(m_daemon->questions() > 0);
    QCoreApplication::processEvents();
}

void UPowerPresenceTest::isSilentAboutDevicesUntilAllAreDescribed()
{
    startDaemon();
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), QStringList());
    m_daemon->setDevice(u"line_power_AC"_s, mouse());
    m_daemon->hang();
    // The daemon's signal is there, its description is not: it may be the battery.
    QTRY_COMPARE(namesOf(service.get()), none());
    m_daemon->resume();
    QTRY_COMPARE(namesOf(service.get()), QStringList());
    QCOMPARE(allLines(), QStringList(connected()));
}

void UPowerPresenceTest::unsubscribesFromADaemonThatHasGone()
{
    const QDBusConnection bus = m_bus->connect();
    UPowerService service(bus, [] { return std::nullopt; });
    QCOMPARE(m_log->takeCount(u"error: Cannot start UPower: "_s), 1);
    const uint before = subscriptionsOf(bus);
    for (int time = 0; time < 2; ++time) {
        startDaemon();
        m_daemon->setDevice(u"battery_BAT0"_s, battery());
        QTRY_COMPARE(namesOf(&service), dell());
        QCOMPARE_GT(subscriptionsOf(bus), before);
        m_daemon.reset();
        QTRY_COMPARE(namesOf(&service), none());
        QTRY_COMPARE(subscriptionsOf(bus), before);
        QCOMPARE(m_log->take(), QStringList({ connected(), u"error: UPower has left the bus"_s }));
    }
}

void UPowerPresenceTest::livesWithoutABus()
{
    UPowerService service(QDBusConnection(u"there is no such connection"_s),
                          [] { return std::nullopt; });
    QCOMPARE(namesOf(&service), none());
    QCOMPARE(m_log->take(),
             QStringList(u"error: Cannot connect to the system bus, so UPower is not available"_s));
}

void UPowerPresenceTest::livesOnWhenTheBusDies()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), dell());
    QCOMPARE(m_log->take(), QStringList(connected()));
    m_bus->stop();
    QTRY_COMPARE(namesOf(service.get()), none());
    QTRY_COMPARE(allLines(), QStringList(u"error: UPower has left the bus"_s));
}

FERRIN_TEST(QCoreApplication, UPowerPresenceTest)
#include "test_upowerpresence.moc"
