// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/singleinstance.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString name = u"org.ferrin.Test"_s;

/// A run that has the name until its connection is closed; the name of that connection.
QString firstRun(PrivateBus &bus)
{
    const QDBusConnection connection = bus.connect();
    return SingleInstance(connection, name).acquire() ? connection.name() : QString();
}

QDBusMessage callOf(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(name, u"/org/ferrin/Test"_s,
                                                       u"org.freedesktop.Application"_s, method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage callOfAction(const QString &action)
{
    return callOf(u"ActivateAction"_s, { action, QVariantList {}, QVariantMap {} });
}

} // namespace

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letsTheFirstRunAndNotTheSecond()
    {
        const LogCapture log;
        PrivateBus bus;
        QVERIFY(SingleInstance(bus.connect(), name).acquire());
        QVERIFY(!SingleInstance(bus.connect(), name).acquire());
        QVERIFY(!SingleInstance(bus.connect(), name).acquire());
    }

    void letsTheNextRunWhenTheFirstHasEnded()
    {
        const LogCapture log;
        PrivateBus bus;
        const QString first = firstRun(bus);
        QVERIFY(!first.isEmpty());
        SingleInstance second(bus.connect(), name);
        QVERIFY(!second.acquire());
        QDBusConnection::disconnectFromBus(first);
        QTRY_VERIFY(second.acquire());
    }

    void doesNotTakeTheNameLaterWhenItCameSecond()
    {
        const LogCapture log;
        PrivateBus bus;
        const QString first = firstRun(bus);
        QVERIFY(!first.isEmpty());
        QVERIFY(!SingleInstance(bus.connect(), name).acquire());
        QDBusConnection::disconnectFromBus(first);
        SingleInstance third(bus.connect(), name);
        QTRY_VERIFY(third.acquire());
    }

    void aSecondStartActivatesTheFirst()
    {
        const LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        const QSignalSpy activations(&first, &SingleInstance::activated);
        SingleInstance second(bus.connect(), name);
        QVERIFY(!second.acquire());
        second.activateOther();
        QTRY_COMPARE(activations.size(), 1);
    }

    void takesOverWhatLetsItsWindowComeToTheFront_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QVariantList>("arguments");
        QTest::newRow("a second start") << u"Activate"_s << QVariantList {};
        QTest::newRow("an action")
            << u"ActivateAction"_s << QVariantList { u"settings"_s, QVariantList {} };
    }

    void takesOverWhatLetsItsWindowComeToTheFront()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, arguments);
        const LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        qunsetenv("XDG_ACTIVATION_TOKEN");
        arguments.append(QVariantMap { { u"activation-token"_s, u"a token"_s } });
        QVERIFY(bus.connect().send(callOf(method, arguments)));
        QTRY_COMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "a token");
        qunsetenv("XDG_ACTIVATION_TOKEN");
    }

    void tellsOfTheActionsOfTheDesktopEntry()
    {
        const LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        const QSignalSpy settings(&first, &SingleInstance::settingsRequested);
        const QSignalSpy quit(&first, &SingleInstance::quitRequested);
        const QDBusConnection desktop = bus.connect();
        QVERIFY(desktop.send(callOfAction(u"settings"_s)));
        QTRY_COMPARE(settings.size(), 1);
        QCOMPARE(quit.size(), 0);
        QVERIFY(desktop.send(callOfAction(u"quit"_s)));
        QTRY_COMPARE(quit.size(), 1);
        QCOMPARE(settings.size(), 1);
    }

    void keepsNothingThatCanBeNoToken()
    {
        const LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        qunsetenv("XDG_ACTIVATION_TOKEN");
        const QSignalSpy activations(&first, &SingleInstance::activated);
        const QVariantMap data { { u"activation-token"_s, QString(100'000, u'x') } };
        QVERIFY(bus.connect().send(callOf(u"Activate"_s, { data })));
        QTRY_COMPARE(activations.size(), 1);
        QVERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    }

    void logsAnActionThatItDoesNotKnow()
    {
        LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        QVERIFY(bus.connect().send(callOfAction(u"dance"_s)));
        QStringList lines;
        QTRY_VERIFY((lines += log.take(), !lines.isEmpty()));
        QCOMPARE(lines, QStringList(u"error: There is no action \"dance\""_s));
    }

    void doesNotLetOthersFillItsLog()
    {
        LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        std::ignore = log.take();
        const QSignalSpy settings(&first, &SingleInstance::settingsRequested);
        const QDBusConnection stranger = bus.connect();
        for (int time = 0; time < 10; ++time)
            QVERIFY(stranger.send(callOfAction(QString(10'000, u'x'))));
        QVERIFY(stranger.send(callOfAction(u"settings"_s)));
        QTRY_COMPARE(settings.size(), 1);
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.constFirst().size() < 100);
    }

    void aSecondStartIsNotHeldUpByAFirstThatHasJustEnded()
    {
        LogCapture log;
        PrivateBus bus;
        SingleInstance second(bus.connect(), name);
        second.activateOther();
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith(u"error: The program that is running did not answer"_s));
    }

    void runsWithoutASessionBus()
    {
        LogCapture log;
        QVERIFY(SingleInstance(QDBusConnection(u"none"_s), name).acquire());
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith(u"error: Unable to connect to the session bus"_s));
    }
};

FERRIN_TEST(QCoreApplication, SingleInstanceTest)
#include "test_singleinstance.moc"
