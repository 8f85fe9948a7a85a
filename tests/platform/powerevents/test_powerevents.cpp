// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Runs on the virtual laptop: one battery, discharging, an adapter and a USB-C port.

#include "platform/linux/power/events/powerevents.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"
#include "tests/support/virtuallaptop.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QRandomGenerator>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <optional>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

// Longer than the folding time.
constexpr int longEnoughMilliseconds = 500;

} // namespace

class PowerEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsOnceThatTheAdapterWasPluggedIn();
    void tellsOnceThatTheAdapterWasUnplugged();
    void tellsThatABatteryIsInAnotherState();
    void passesOverMeasurements();
    void passesOverAMessageThatTellsNothingNew();
    void passesOverAStateThatCannotBeRead();
    void passesOverPeripherals();
    void tellsThatASupplyCameOrWent();
    void passesOverUninterruptiblePowerSupplies();
    void survivesTwoThousandSuppliesThatComeAndGo();
    void foldsInWhatUPowerReports();
    void refreshesTwiceAfterWaking();
    void hearsWakingFromNobodyButLogind();
    void livesWithoutABus();

private:
    void prepareForSleep(const QDBusConnection &sender, bool start);

    std::optional<LogCapture> m_log;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<PowerEvents> m_events;
    std::unique_ptr<QSignalSpy> m_changed;
    std::unique_ptr<QSignalSpy> m_woke;
};

void PowerEventsTest::init()
{
    tellLaptop({ u"unplug"_s });
    m_log.emplace();
    m_bus = std::make_unique<PrivateBus>();
    m_events = std::make_unique<PowerEvents>(m_bus->connect());
    m_changed = std::make_unique<QSignalSpy>(m_events.get(), &PowerEvents::changed);
    m_woke = std::make_unique<QSignalSpy>(m_events.get(), &PowerEvents::woke);
}

void PowerEventsTest::cleanup()
{
    m_events.reset();
    m_bus.reset();
    m_log.reset();
}

void PowerEventsTest::prepareForSleep(const QDBusConnection &sender, bool start)
{
    QDBusMessage signal = QDBusMessage::createSignal(
        u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s);
    signal.setArguments({ start });
    QVERIFY(sender.send(signal));
}

void PowerEventsTest::tellsOnceThatTheAdapterWasPluggedIn()
{
    // Two adapters and a battery, with one message each.
    tellLaptop({ u"plug"_s });
    QTRY_COMPARE(m_changed->count(), 1);
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 1);
    QCOMPARE(m_woke->count(), 0);
}

void PowerEventsTest::tellsOnceThatTheAdapterWasUnplugged()
{
    tellLaptop({ u"plug"_s });
    QTRY_COMPARE(m_changed->count(), 1);
    tellLaptop({ u"unplug"_s });
    QTRY_COMPARE(m_changed->count(), 2);
}

void PowerEventsTest::tellsThatABatteryIsInAnotherState()
{
    tellLaptop({ u"set"_s, u"BAT0"_s, u"status"_s, u"Not charging"_s });
    QTRY_COMPARE(m_changed->count(), 1);
}

void PowerEventsTest::passesOverMeasurements()
{
    tellLaptop({ u"set"_s, u"BAT0"_s, u"capacity"_s, u"36"_s, u"energy_now"_s, u"16000000"_s });
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 0);
}

void PowerEventsTest::passesOverAMessageThatTellsNothingNew()
{
    for (const QString &supply : { u"BAT0"_s, u"AC"_s, u"ucsi-source-psy-USBC000:001"_s })
        tellLaptop({ u"uevent"_s, supply });
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 0);
}

void PowerEventsTest::passesOverAStateThatCannotBeRead()
{
    tellLaptop({ u"fault"_s, u"BAT0"_s, u"status"_s, u"eio"_s });
    tellLaptop({ u"uevent"_s, u"BAT0"_s });
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 0);
    tellLaptop({ u"heal"_s, u"BAT0"_s, u"status"_s });
    tellLaptop({ u"set"_s, u"BAT0"_s, u"status"_s, u"Charging"_s });
    QTRY_COMPARE(m_changed->count(), 1);
}

void PowerEventsTest::passesOverPeripherals()
{
    tellLaptop({ u"add"_s, u"hidpp_battery_0"_s,
                 uR"({"type": "Battery", "scope": "Device", "status": "Discharging"})"_s });
    tellLaptop({ u"set"_s, u"hidpp_battery_0"_s, u"status"_s, u"Charging"_s });
    tellLaptop({ u"remove"_s, u"hidpp_battery_0"_s });
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 0);
}

void PowerEventsTest::tellsThatASupplyCameOrWent()
{
    tellLaptop({ u"add"_s, u"BAT1"_s, uR"({"type": "Battery", "status": "Discharging"})"_s });
    QTRY_COMPARE(m_changed->count(), 1);
    tellLaptop({ u"remove"_s, u"BAT1"_s });
    QTRY_COMPARE(m_changed->count(), 2);
}

void PowerEventsTest::passesOverUninterruptiblePowerSupplies()
{
    tellLaptop({ u"add"_s, u"ups_hiddev3"_s, uR"({"type": "UPS", "status": "Full"})"_s });
    tellLaptop({ u"set"_s, u"ups_hiddev3"_s, u"status"_s, u"Discharging"_s });
    tellLaptop({ u"remove"_s, u"ups_hiddev3"_s });
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 0);
}

void PowerEventsTest::survivesTwoThousandSuppliesThatComeAndGo()
{
    tellLaptop({ u"upower"_s, u"stop"_s });
    QRandomGenerator random(1);
    QSet<QString> there;
    for (int number = 0; number < 2'000; ++number) {
        const QString name = u"CMB%1"_s.arg(random.bounded(5));
        if (!there.contains(name)) {
            tellLaptop({ u"add"_s, name, uR"({"type": "Battery", "status": "Full"})"_s });
            there.insert(name);
        } else if (random.bounded(2) == 0) {
            tellLaptop({ u"remove"_s, name });
            there.remove(name);
        } else {
            tellLaptop({ u"set"_s, name, u"status"_s, u"State %1"_s.arg(number) });
        }
        // umockdev fails when the messages of a listener pile up.
        QCoreApplication::processEvents();
    }
    QTest::qWait(longEnoughMilliseconds);
    const qsizetype before = m_changed->count();
    tellLaptop({ u"plug"_s });
    QTRY_COMPARE(m_changed->count(), before + 1);
    for (const QString &name : std::as_const(there)) {
        tellLaptop({ u"remove"_s, name });
        QCoreApplication::processEvents();
    }
    tellLaptop({ u"upower"_s, u"start"_s });
}

void PowerEventsTest::foldsInWhatUPowerReports()
{
    m_events->scheduleChanged();
    m_events->scheduleChanged();
    QCOMPARE(m_changed->count(), 0);
    QTRY_COMPARE(m_changed->count(), 1);
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 1);
}

void PowerEventsTest::refreshesTwiceAfterWaking()
{
    QDBusConnection logind = m_bus->connect();
    QVERIFY(logind.registerService(u"org.freedesktop.login1"_s));
    prepareForSleep(logind, true);
    prepareForSleep(logind, false);
    QTRY_COMPARE(m_woke->count(), 1);
    QCOMPARE(m_changed->count(), 1);
    QTRY_COMPARE(m_changed->count(), 2);
    QTest::qWait(static_cast<int>(PowerEvents::secondRefreshDelay.count())
                 + longEnoughMilliseconds);
    QCOMPARE(m_changed->count(), 2);
    QCOMPARE(m_woke->count(), 1);
}

void PowerEventsTest::hearsWakingFromNobodyButLogind()
{
    QDBusConnection logind = m_bus->connect();
    QVERIFY(logind.registerService(u"org.freedesktop.login1"_s));
    prepareForSleep(m_bus->connect(), false);
    QTest::qWait(longEnoughMilliseconds);
    QCOMPARE(m_woke->count(), 0);
    prepareForSleep(logind, false);
    QTRY_COMPARE(m_woke->count(), 1);
}

void PowerEventsTest::livesWithoutABus()
{
    PowerEvents events { QDBusConnection(u"there is no such connection"_s) };
    const QSignalSpy spy(&events, &PowerEvents::changed);
    tellLaptop({ u"plug"_s });
    QTRY_COMPARE(spy.count(), 1);
}

QTEST_GUILESS_MAIN(PowerEventsTest)
#include "test_powerevents.moc"
