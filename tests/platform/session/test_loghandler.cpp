// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/logging.h"
#include "platform/linux/session/loghandler.h"

#include <QProcess>
#include <QTemporaryFile>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

/// Two ends of something, closed with the test.
struct Ends : std::array<int, 2>
{
    ~Ends()
    {
        for (const int end : *this)
            close(end);
    }
};

void logOneLineOfEachLevel()
{
    installLogHandler(u"org.ferrin.Test"_s);
    qCDebug(logger, "Setting menu bar icon with width: %f", 48.0);
    qCInfo(logger, "Current release: %s", "1.0");
    qCCritical(logger, "Unable to decode key %s", "\u00e9");
    qWarning("of the toolkit's own");
}

} // namespace

class LogHandlerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheJournalTheFieldsOfAMessage_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("priority");
        QTest::newRow("debug") << int(QtDebugMsg) << QByteArray("7");
        QTest::newRow("info") << int(QtInfoMsg) << QByteArray("6");
        QTest::newRow("warning") << int(QtWarningMsg) << QByteArray("4");
        QTest::newRow("error") << int(QtCriticalMsg) << QByteArray("3");
        QTest::newRow("fatal") << int(QtFatalMsg) << QByteArray("2");
    }

    void givesTheJournalTheFieldsOfAMessage()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, priority);
        QCOMPARE(journalFields(static_cast<QtMsgType>(type), logger().categoryName(),
                               u"Current release: \u00e9"_s, u"org.ferrin.Ferrin"_s),
                 QByteArrayList({ "MESSAGE=Current release: \xc3\xa9", "PRIORITY=" + priority,
                                  "SYSLOG_IDENTIFIER=ferrin", "CATEGORY=stats",
                                  "SUBSYSTEM=org.ferrin.Ferrin" }));
    }

    void keepsTheSubsystemThatACategoryNames()
    {
        QCOMPARE(
            journalFields(QtCriticalMsg, "org.ferrin.Part/main", u"text"_s, u"org.ferrin.Ferrin"_s),
            QByteArrayList({ "MESSAGE=text", "PRIORITY=3", "SYSLOG_IDENTIFIER=ferrin",
                             "CATEGORY=main", "SUBSYSTEM=org.ferrin.Part" }));
    }

    void writesAPlainLineForPeople()
    {
        QCOMPARE(plainLine(QtCriticalMsg, u"Unable to \u00e9"_s),
                 QByteArray("ferrin: error: Unable to \xc3\xa9\n"));
    }

    void takesATerminalAndAPipeForRead()
    {
        Ends pipeEnds;
        QVERIFY(pipe(pipeEnds.data()) == 0);
        QVERIFY(isReadDirectly(pipeEnds[1]));

        const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(terminal >= 0);
        QVERIFY(isReadDirectly(terminal));
        close(terminal);
    }

    void takesAFileASocketAndNothingForNotRead()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        QVERIFY(!isReadDirectly(file.handle()));
        Ends socketEnds;
        QVERIFY(socketpair(AF_UNIX, SOCK_STREAM, 0, socketEnds.data()) == 0);
        QVERIFY(!isReadDirectly(socketEnds[0]));
        QVERIFY(!isReadDirectly(-1));
    }

    void writesEveryLevelToAPipeThatIsRead()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), { u"log"_s });
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardError(),
                 QByteArray("ferrin: debug: Setting menu bar icon with width: 48.000000\n"
                            "ferrin: info: Current release: 1.0\n"
                            "ferrin: error: Unable to decode key \xc3\xa9\n"
                            "ferrin: warning: of the toolkit's own\n"));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == u"log"_s) {
        logOneLineOfEachLevel();
        return 0;
    }
    LogHandlerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_loghandler.moc"
