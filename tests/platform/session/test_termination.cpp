// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/termination.h"
#include "tests/support/privatebus.h"

#include <QDBusConnection>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdio>
#include <unistd.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int endedByItsLoop = 0;
constexpr int endedOtherwise = 3;

void sayReady()
{
    std::puts("ready");
    std::fflush(stdout);
}

/// A program that runs until it is told to end.
int runProgram(const QString &address)
{
    const Termination termination(address.isEmpty()
                                      ? QDBusConnection(u"none"_s)
                                      : QDBusConnection::connectToBus(address, u"session"_s));
    QMetaObject::invokeMethod(QCoreApplication::instance(), sayReady, Qt::QueuedConnection);
    return QCoreApplication::exec() == 0 ? endedByItsLoop : endedOtherwise;
}

/// A program whose event loop never comes to hear of a signal.
int runDeafProgram()
{
    const Termination termination { QDBusConnection(u"none"_s) };
    sayReady();
    while (true)
        pause();
}

struct Program
{
    QProcess process;

    explicit Program(const QStringList &arguments)
    {
        PrivateBus::endWithTest(&process);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), arguments);
        while (!process.canReadLine() && process.waitForReadyRead()) { }
    }

    /// False when there is no such program: a signal to process 0 would go to the test itself.
    [[nodiscard]] bool send(int signal) const
    {
        const auto id = static_cast<pid_t>(process.processId());
        return id > 0 && ::kill(id, signal) == 0;
    }
};

} // namespace

class TerminationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsTheLoopOnASignal_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void endsTheLoopOnASignal()
    {
        QFETCH(int, signal);
        Program program({ u"run"_s, u""_s });
        QVERIFY(program.send(signal));
        QVERIFY(program.process.waitForFinished());
        QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.process.exitCode(), endedByItsLoop);
    }

    void endsTheLoopWhenTheSessionsBusGoes()
    {
        PrivateBus bus;
        Program program({ u"run"_s, bus.address() });
        bus.stop();
        QVERIFY(program.process.waitForFinished());
        QCOMPARE(program.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.process.exitCode(), endedByItsLoop);
    }

    void endsAProgramThatDoesNotListenAtTheSecondSignal()
    {
        Program program({ u"deaf"_s });
        do
            QVERIFY(program.send(SIGTERM));
        while (!program.process.waitForFinished(20));
        QCOMPARE(program.process.exitStatus(), QProcess::CrashExit);
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"run"_s)
        return runProgram(arguments.value(2));
    if (arguments.value(1) == u"deaf"_s)
        return runDeafProgram();
    TerminationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_termination.moc"
