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

    void takesOverWhatLetsItsWindowComeToTheFront()
    {
        const LogCapture log;
        PrivateBus bus;
        SingleInstance first(bus.connect(), name);
        QVERIFY(first.acquire());
        QDBusMessage call = QDBusMessage::createMethodCall(
            name, u"/org/ferrin/Test"_s, u"org.freedesktop.Application"_s, u"Activate"_s);
        call.setArguments({ QVariantMap { { u"activation-token"_s, u"a token"_s } } });
        qunsetenv("XDG_ACTIVATION_TOKEN");
        QVERIFY(bus.connect().send(call));
        QTRY_COMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "a token");
        qunsetenv("XDG_ACTIVATION_TOKEN");
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
