// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/upower/serviceonthebus.h"
#include "tests/support/testmain.h"

#include <QTest>
#include <QTimer>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The service with a daemon, or another client, that sends invalid or excessive data.
class UPowerFaultsTest : public ServiceOnTheBus
{
    Q_OBJECT

private Q_SLOTS:
    void dropsAPropertyOfAWrongTypeAndKeepsTheRest_data();
    void dropsAPropertyOfAWrongTypeAndKeepsTheRest();
    void survivesAnswersOfAnotherForm();
    void survivesADaemonThatRefusesToAnswer();
    void findsTheBatteryAmongTenThousandDevices();
    void keepsABoundedNumberOfTenThousandBatteries();
    void survivesADeviceThatIsRemovedWhileItIsAskedAbout();
    void survivesTenThousandDevicesThatComeAndGo();
    void believesNobodyButTheDaemon();
};

void UPowerFaultsTest::dropsAPropertyOfAWrongTypeAndKeepsTheRest_data()
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

void UPowerFaultsTest::dropsAPropertyOfAWrongTypeAndKeepsTheRest()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(QString, key);
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery({ { u"NativePath"_s, QString() } }));
    const auto service = makeService();
    QVariantMap expected = pictureOf(service.get())->at(0);
    QCOMPARE(m_log->take(), QStringList(connected()));
    QVERIFY(expected.remove(key) > 0);
    for (int time = 0; time < 3; ++time)
        m_daemon->setDevice(u"battery_BAT0"_s, { { property, value } });
    QTRY_COMPARE(pictureOf(service.get())->at(0), expected);
    QCOMPARE(m_log->take(),
             QStringList(u"error: UPower sent %1 with an unexpected type"_s.arg(property)));
}

void UPowerFaultsTest::survivesAnswersOfAnotherForm()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->talkNonsense();
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(m_log->take(),
             QStringList(u"error: UPower listed its devices with an unexpected signature"_s));
    for (int number = 0; number < 3; ++number)
        m_daemon->setDevice(u"battery_BAT1%1"_s.arg(number), battery());
    QTRY_COMPARE(allLines(),
                 QStringList(u"error: UPower described a device with an unexpected signature"_s));
    QCOMPARE(namesOf(service.get()), none());
}

void UPowerFaultsTest::survivesADaemonThatRefusesToAnswer()
{
    startDaemon();
    m_daemon->refuse(u"Not\n for you"_s);
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none());
    QCOMPARE(m_log->take(),
             QStringList(u"error: UPower refuses to list its devices: Not for you"_s));
}

void UPowerFaultsTest::findsTheBatteryAmongTenThousandDevices()
{
    startDaemon();
    m_daemon->addMany(u"a_mouse_"_s, 10'000, mouse());
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(namesOf(service.get()), none());
    int turns = 0;
    QTimer otherWork;
    connect(&otherWork, &QTimer::timeout, this, [&turns] { ++turns; });
    otherWork.start(0ms);
    QTRY_COMPARE_WITH_TIMEOUT(namesOf(service.get()), dell(), 120'000);
    QVERIFY(turns > 100);
    QCOMPARE(m_log->take(), QStringList(connected()));
}

void UPowerFaultsTest::keepsABoundedNumberOfTenThousandBatteries()
{
    startDaemon();
    m_daemon->addMany(u"battery_"_s, 10'000, battery());
    const auto service = makeService();
    QTRY_COMPARE_WITH_TIMEOUT(namesOf(service.get()).size(), 64, 120'000);
    QTRY_COMPARE(
        allLines(),
        QStringList({ connected(), u"error: UPower has more devices than Ferrin reads"_s }));
    m_daemon->setDevice(u"battery_0"_s, { { u"Model"_s, u"still followed"_s } });
    QTRY_COMPARE(namesOf(service.get()).first(), u"still followed"_s);
}

void UPowerFaultsTest::survivesADeviceThatIsRemovedWhileItIsAskedAbout()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    m_daemon->setDevice(u"battery_BAT1"_s, battery());
    m_daemon->makeShy(u"battery_BAT1"_s);
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QCOMPARE(namesOf(service.get()), dell());
    m_daemon->makeShy(u"battery_BAT2"_s);
    m_daemon->setDevice(u"battery_BAT2"_s, battery());
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Model"_s, u"still here"_s } });
    QTRY_COMPARE(namesOf(service.get()), QStringList(u"still here"_s));
}

void UPowerFaultsTest::survivesTenThousandDevicesThatComeAndGo()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
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

void UPowerFaultsTest::believesNobodyButTheDaemon()
{
    startDaemon();
    m_daemon->setDevice(u"battery_BAT0"_s, battery());
    const auto service = makeService();
    QCOMPARE(m_log->take(), QStringList(connected()));
    QDBusMessage lie
        = QDBusMessage::createSignal(FakeUPower::path(u"battery_BAT0"_s),
                                     u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
    lie.setArguments({ u"org.freedesktop.UPower.Device"_s,
                       QVariantMap { { u"TimeToEmpty"_s, qlonglong(600) } }, QStringList() });
    QDBusConnection liar = m_bus->connect();
    QVERIFY(liar.send(lie));
    // The bus keeps the order of messages.
    QVERIFY(liar.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                     u"org.freedesktop.DBus"_s, u"GetId"_s))
                .type()
            == QDBusMessage::ReplyMessage);
    m_daemon->setDevice(u"battery_BAT0"_s, { { u"Percentage"_s, 20.0 } });
    QTRY_COMPARE(factOf(service.get(), u"Current Capacity"_s), QVariant(20));
    QCOMPARE(factOf(service.get(), u"Time to Empty"_s), QVariant(60));
}

FERRIN_TEST(QCoreApplication, UPowerFaultsTest)
#include "test_upowerfaults.moc"
