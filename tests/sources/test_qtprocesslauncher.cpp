// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/batterydatafromshell.h"
#include "sources/qtprocesslauncher.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const QString shell = u"/bin/sh"_s;

/// A folder with a fake report tool.
class ToolFolder
{
public:
    explicit ToolFolder(const QByteArray &script)
    {
        QFile file(m_folder.filePath(u"system_profiler"_s));
        if (file.open(QIODevice::WriteOnly))
            file.write("#!/bin/sh\n" + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    [[nodiscard]] QString path() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

} // namespace

class QtProcessLauncherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatTheProgramPrints();
    void passesArgumentsAsTheyStand();
    void doesNotCareHowTheProgramEnds_data();
    void doesNotCareHowTheProgramEnds();
    void saysThatNothingWasStarted_data();
    void saysThatNothingWasStarted();
    void putsItsFolderFirstInThePath();
    void leavesTheEnvironmentOtherwiseAsItIs();
    void doesNotMixErrorsIntoTheOutput();
    void givesTheProgramNothingToRead();
    void waitsForTheExitAfterTheOutputHasEnded();
    void survivesAToolThatPrintsAHundredMegabytes();
    void runsTheReportToolOfItsFolder();
    void readsFiguresBuriedInAHundredMegabytes();
};

void QtProcessLauncherTest::keepsWhatTheProgramPrints()
{
    QtProcessLauncher launcher(u"/nowhere"_s);
    QCOMPARE(launcher.output(shell, { u"-c"_s, u"printf ' a\\n\\000b\\377\\n'"_s }),
             QByteArray(" a\n\0b\xff\n", 7));
    QCOMPARE(launcher.output(shell, { u"-c"_s, u":"_s }), QByteArray());
}

void QtProcessLauncherTest::passesArgumentsAsTheyStand()
{
    QtProcessLauncher launcher(u"/nowhere"_s);
    const auto output = launcher.output(
        shell, { u"-c"_s, u"printf '%s|' \"$0\" \"$@\""_s, u"a b"_s, u""_s, u"\"c\" $d"_s });
    QCOMPARE(output, QByteArray("a b||\"c\" $d|"));
}

void QtProcessLauncherTest::doesNotCareHowTheProgramEnds_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("with a failure") << u"echo said; exit 3"_s;
    QTest::newRow("by a signal") << u"echo said; kill -KILL $$"_s;
}

void QtProcessLauncherTest::doesNotCareHowTheProgramEnds()
{
    QFETCH(const QString, command);
    QtProcessLauncher launcher(u"/nowhere"_s);
    QCOMPARE(launcher.output(shell, { u"-c"_s, command }), QByteArray("said\n"));
}

void QtProcessLauncherTest::saysThatNothingWasStarted_data()
{
    QTest::addColumn<QString>("executable");
    QTest::newRow("missing") << u"/nowhere/at/all"_s;
    QTest::newRow("a folder") << u"/"_s;
    QTest::newRow("no name") << u""_s;
}

void QtProcessLauncherTest::saysThatNothingWasStarted()
{
    QFETCH(const QString, executable);
    QtProcessLauncher launcher(u"/nowhere"_s);
    QCOMPARE(launcher.output(executable, { u"-c"_s }), std::nullopt);
}

void QtProcessLauncherTest::putsItsFolderFirstInThePath()
{
    QtProcessLauncher launcher(u"/our own/tools"_s);
    const auto path = launcher.output(shell, { u"-c"_s, u"printf %s \"$PATH\""_s });
    QCOMPARE(path, QByteArray("/our own/tools:" + qgetenv("PATH")));

    const QByteArray before = qgetenv("PATH");
    qunsetenv("PATH");
    const auto alone = launcher.output(shell, { u"-c"_s, u"printf %s \"$PATH\""_s });
    qputenv("PATH", before);
    QCOMPARE(alone, QByteArray("/our own/tools"));
}

void QtProcessLauncherTest::leavesTheEnvironmentOtherwiseAsItIs()
{
    QtProcessLauncher launcher(u"/nowhere"_s);
    qputenv("FERRIN_TEST_VALUE", "seen");
    const auto seen = launcher.output(shell, { u"-c"_s, u"printf %s \"$FERRIN_TEST_VALUE\""_s });
    qunsetenv("FERRIN_TEST_VALUE");
    QCOMPARE(seen, QByteArray("seen"));
    QVERIFY(!qgetenv("PATH").startsWith("/nowhere"));
}

void QtProcessLauncherTest::doesNotMixErrorsIntoTheOutput()
{
    QtProcessLauncher launcher(u"/nowhere"_s);
    // The outer shell's standard error can be captured; the inner shell must inherit it.
    const auto output
        = launcher.output(shell, { u"-c"_s, u"echo out; readlink /proc/$$/fd/2 >&1; echo >&2"_s });
    const QByteArray ours = QFile::symLinkTarget(u"/proc/self/fd/2"_s).toUtf8();
    QVERIFY(output);
    QVERIFY(output->startsWith("out\n"));
    QCOMPARE(QString::fromUtf8(output->mid(4).trimmed()).section(u'/', -1),
             QString::fromUtf8(ours).section(u'/', -1));
}

void QtProcessLauncherTest::givesTheProgramNothingToRead()
{
    QVERIFY(std::freopen("/proc/self/cmdline", "r", stdin));
    QtProcessLauncher launcher(u"/nowhere"_s);
    QCOMPARE(launcher.output(shell, { u"-c"_s, u"cat; echo done"_s }), QByteArray("done\n"));
}

void QtProcessLauncherTest::waitsForTheExitAfterTheOutputHasEnded()
{
    const QTemporaryDir folder;
    const QString mark = folder.filePath(u"mark"_s);
    QtProcessLauncher launcher(u"/nowhere"_s);
    const auto output = launcher.output(
        shell, { u"-c"_s, u"echo said; exec >&-; sleep 0.2; : > \"$0\""_s, mark });
    QCOMPARE(output, QByteArray("said\n"));
    QVERIFY(QFile::exists(mark));
}

void QtProcessLauncherTest::survivesAToolThatPrintsAHundredMegabytes()
{
    QtProcessLauncher launcher(u"/nowhere"_s);
    const auto output = launcher.output(
        shell, { u"-c"_s, u"head -c 100000000 /dev/zero | tr '\\0' x; echo end"_s });
    QVERIFY(output);
    QCOMPARE(output->size(), 100000004);
    QVERIFY(output->endsWith("xend\n"));
}

void QtProcessLauncherTest::runsTheReportToolOfItsFolder()
{
    const ToolFolder tools("echo \"Condition: $LANG $1 $#\"");
    QtProcessLauncher launcher(tools.path());
    BatteryDataFromShell reader(launcher);
    test::LogCapture log;
    reader.refresh();
    QCOMPARE(log.take(), QStringList(u"info: Connection to shell successful"_s));
    QCOMPARE(reader.response(), u"Condition: C SPPowerDataType 1"_s);
}

void QtProcessLauncherTest::readsFiguresBuriedInAHundredMegabytes()
{
    const ToolFolder tools("head -c 50000000 /dev/zero | tr '\\0' '\\n'\n"
                           "echo Maximum Capacity: 87%\n"
                           "head -c 50000000 /dev/zero | tr '\\0' x\n"
                           "printf '\\nCondition: Normal\\n'");
    QtProcessLauncher launcher(tools.path());
    BatteryDataFromShell reader(launcher);
    test::LogCapture log;
    reader.refresh();
    QCOMPARE(log.take(), QStringList(u"info: Connection to shell successful"_s));
    QCOMPARE(reader.maxCapacity(), 87);
    QCOMPARE(reader.condition(), u"Normal"_s);
}

FERRIN_TEST(QCoreApplication, QtProcessLauncherTest)
#include "test_qtprocesslauncher.moc"
