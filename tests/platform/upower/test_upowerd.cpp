// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Runs on the virtual laptop with the real UPower.

#include "platform/linux/power/events/powerevents.h"
#include "platform/linux/power/sysfs/externalpower.h"
#include "platform/linux/power/sysfs/supplyreader.h"
#include "platform/linux/power/upower/upowerservice.h"
#include "tests/support/logcapture.h"
#include "tests/support/virtuallaptop.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <optional>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class UPowerDaemonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsTheLaptopsOneBattery();
    void tellsOneBatteryBesideAMouseAndAKeyboard();
    void tellsTheChargeAfterADrain();
    void settlesAfterPluggingInAndThenTellsTheTimeToFull();
    void isNullWhileTheDaemonIsGone();
    void goesOnWithADaemonThatHung();
    void tellsABatteryThatIsPutBack();

private:
    [[nodiscard]] std::optional<QList<QVariantMap>> picture();
    [[nodiscard]] QVariant fact(const QString &key);

    std::chrono::steady_clock::time_point m_time;
    std::optional<LogCapture> m_log;
    std::unique_ptr<UPowerService> m_service;
    std::unique_ptr<PowerEvents> m_events;
};

void UPowerDaemonTest::init()
{
    tellLaptop({ u"drain"_s, u"BAT0"_s, u"37"_s });
    tellLaptop({ u"unplug"_s });
    m_log.emplace();
    m_log->ignoreRest();
    // A new connection for each test, not the shared one.
    const QDBusConnection bus = QDBusConnection::connectToBus(
        QDBusConnection::SystemBus, QString::fromUtf8(QTest::currentTestFunction()));
    m_service = std::make_unique<UPowerService>(
        bus, [] { return externalConnected(SupplyReader("/sys").read()); },
        [this] { return m_time; });
    m_events = std::make_unique<PowerEvents>(bus);
    connect(m_service.get(), &UPowerService::powerStateChanged, m_events.get(),
            &PowerEvents::scheduleChanged);
    QTRY_COMPARE(fact(u"Is Charging"_s), QVariant(false));
}

void UPowerDaemonTest::cleanup()
{
    m_events.reset();
    m_service.reset();
    QDBusConnection::disconnectFromBus(QString::fromUtf8(QTest::currentTestFunction()));
    m_log.reset();
}

std::optional<QList<QVariantMap>> UPowerDaemonTest::picture()
{
    const PowerSourcesService::Snapshot snapshot = m_service->copyInfo();
    const auto handles = m_service->copyList(snapshot);
    if (!handles)
        return std::nullopt;
    QList<QVariantMap> descriptions;
    for (const PowerSourcesService::SourceHandle handle : *handles)
        descriptions.append(m_service->description(snapshot, handle).toMap());
    return descriptions;
}

QVariant UPowerDaemonTest::fact(const QString &key)
{
    return picture().value_or(QList<QVariantMap>()).value(0).value(key);
}

void UPowerDaemonTest::tellsTheLaptopsOneBattery()
{
    const QVariantMap expected {
        { u"Type"_s, u"InternalBattery"_s },
        { u"Name"_s, u"FR50XL"_s },
        // 17.02 Wh at 6.1 W.
        { u"Time to Empty"_s, 167 },
        { u"Time to Full Charge"_s, 0 },
        { u"Current Capacity"_s, 37 },
        { u"Max Capacity"_s, 100 },
        { u"Is Charging"_s, false },
        { u"Is Present"_s, true },
        { u"Power Source State"_s, u"Battery Power"_s },
    };
    QTRY_COMPARE(picture(), std::optional(QList<QVariantMap> { expected }));
}

void UPowerDaemonTest::tellsOneBatteryBesideAMouseAndAKeyboard()
{
    const QString peripheral
        = uR"({"type": "Battery", "scope": "Device", "status": "Discharging", "capacity": "90"})"_s;
    for (const QString &name : { u"hidpp_battery_0"_s, u"hidpp_battery_1"_s })
        tellLaptop({ u"add"_s, name, peripheral });
    // Last in the order of the daemon.
    tellLaptop({ u"add"_s, u"BAT9"_s, uR"({"type": "Battery", "present": "1", "status": "Full",
                      "energy_full": "20000000", "energy_full_design": "20000000",
                      "energy_now": "20000000", "voltage_now": "12000000"})"_s });
    QTRY_COMPARE(picture().value_or(QList<QVariantMap>()).size(), 2);
    QCOMPARE(fact(u"Name"_s), QVariant(u"FR50XL"_s));
    for (const QString &name : { u"BAT9"_s, u"hidpp_battery_0"_s, u"hidpp_battery_1"_s })
        tellLaptop({ u"remove"_s, name });
    QTRY_COMPARE(picture().value_or(QList<QVariantMap>()).size(), 1);
}

void UPowerDaemonTest::tellsTheChargeAfterADrain()
{
    tellLaptop({ u"drain"_s, u"BAT0"_s, u"20"_s });
    QTRY_COMPARE(fact(u"Current Capacity"_s), QVariant(20));
}

void UPowerDaemonTest::settlesAfterPluggingInAndThenTellsTheTimeToFull()
{
    const QSignalSpy changed(m_events.get(), &PowerEvents::changed);
    tellLaptop({ u"plug"_s });
    QTRY_VERIFY(changed.count() > 0);
    QCOMPARE(fact(u"Time to Full Charge"_s), QVariant(-1));
    QCOMPARE(fact(u"Time to Empty"_s), QVariant(0));
    QTRY_COMPARE(fact(u"Is Charging"_s), QVariant(true));
    QCOMPARE(fact(u"Time to Full Charge"_s), QVariant(-1));
    m_time += 10s;
    // 28.98 Wh at 33 W.
    QTRY_COMPARE(fact(u"Time to Full Charge"_s), QVariant(52));
}

void UPowerDaemonTest::isNullWhileTheDaemonIsGone()
{
    tellLaptop({ u"upower"_s, u"stop"_s });
    QTRY_COMPARE(picture(), std::nullopt);
    tellLaptop({ u"upower"_s, u"start"_s });
    QTRY_COMPARE(fact(u"Current Capacity"_s), QVariant(37));
}

void UPowerDaemonTest::goesOnWithADaemonThatHung()
{
    tellLaptop({ u"upower"_s, u"hang"_s });
    tellLaptop({ u"drain"_s, u"BAT0"_s, u"30"_s });
    QCOMPARE(fact(u"Current Capacity"_s), QVariant(37));
    tellLaptop({ u"upower"_s, u"resume"_s });
    QTRY_COMPARE(fact(u"Current Capacity"_s), QVariant(30));
}

void UPowerDaemonTest::tellsABatteryThatIsPutBack()
{
    tellLaptop({ u"remove"_s, u"BAT0"_s });
    QTRY_COMPARE(picture(), std::optional(QList<QVariantMap>()));
    tellLaptop({ u"add"_s, u"BAT0"_s });
    QTRY_COMPARE(fact(u"Name"_s), QVariant(u"FR50XL"_s));
}

QTEST_GUILESS_MAIN(UPowerDaemonTest)
#include "test_upowerd.moc"
