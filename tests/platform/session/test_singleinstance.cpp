// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/singleinstance.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

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

    void runsWithoutASessionBus()
    {
        LogCapture log;
        QVERIFY(SingleInstance(QDBusConnection(u"none"_s), name).acquire());
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith(u"error: Unable to connect to the session bus"_s));
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "test_singleinstance.moc"
