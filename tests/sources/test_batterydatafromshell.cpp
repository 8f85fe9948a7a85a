// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/batterydatafromshell.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::FakeProcessLauncher;
using test::LogCapture;

namespace {

const QString success = u"info: Connection to shell successful"_s;
const QString noCapacity
    = u"error: Not possible to read battery max capacity when parsing shell response"_s;
const QString noInteger
    = u"error: Not possible to convert battery max capacity to Int when parsing shell response"_s;
const QString noCondition
    = u"error: Not possible to read battery health condition when parsing shell response"_s;

constexpr auto report = R"(
Power:

    Battery Information:

      Health Information:
          Cycle Count: 123
          Condition: Normal
          Maximum Capacity: 87%

)";

/// A reader that has read a report; the log line about it is already taken.
struct Bench
{
    explicit Bench(const QByteArray &text)
    {
        launcher.answer = text;
        LogCapture log;
        reader.refresh();
        std::ignore = log.take();
    }

    FakeProcessLauncher launcher;
    BatteryDataFromShell reader { launcher };
};

} // namespace

class BatteryDataFromShellTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsTheShellWithItsArguments();
    void runsTheReportTool();
    void hasNoResponseBeforeItsFirstRun();
    void saysThatTheShellCouldNotBeStarted();
    void printsTheWholeListOfArguments();
    void forgetsAResponseWhenALaterRunFails();
    void replacesBytesThatAreNotText();
    void trimsBothEnds();
    void takesAnEmptyOutputForAnEmptyText();
    void tellsOfEverySuccess();
    void readsBothFiguresFromOneRun();
    void readsAHealthyReport();
    void readsAConditionThatAsksForService();
    void readsAConditionWithoutACapacity();
    void finds_data();
    void finds();
    void findsNoCapacityIn_data();
    void findsNoCapacityIn();
    void cannotConvertTwentyNines();
    void readsTheGreatestCapacityThatFits();
    void findsTheConditionToTheEndOfItsLine_data();
    void findsTheConditionToTheEndOfItsLine();
    void findsNoConditionIn_data();
    void findsNoConditionIn();
};

void BatteryDataFromShellTest::runsTheShellWithItsArguments()
{
    FakeProcessLauncher launcher;
    launcher.answer = "hello\n";
    const BatteryDataFromShell reader(launcher);
    QCOMPARE(reader.runShell({ u"echo $0"_s, u"hello"_s }), u"hello"_s);
    const FakeProcessLauncher::Run run { u"/bin/sh"_s, { u"-c"_s, u"echo $0"_s, u"hello"_s } };
    QCOMPARE(launcher.runs, QList { run });
    QCOMPARE(reader.response(), std::nullopt);
}

void BatteryDataFromShellTest::runsTheReportTool()
{
    const Bench bench(report);
    const FakeProcessLauncher::Run run { u"/bin/sh"_s,
                                         { u"-c"_s, u"LANG=C system_profiler SPPowerDataType"_s } };
    QCOMPARE(bench.launcher.runs, QList { run });
}

void BatteryDataFromShellTest::hasNoResponseBeforeItsFirstRun()
{
    LogCapture log;
    FakeProcessLauncher launcher;
    const BatteryDataFromShell reader(launcher);
    QCOMPARE(reader.response(), std::nullopt);
    QCOMPARE(reader.maxCapacity(), std::nullopt);
    QCOMPARE(reader.condition(), std::nullopt);
    QVERIFY(launcher.runs.isEmpty());
    QCOMPARE(log.take(), QStringList());
}

void BatteryDataFromShellTest::saysThatTheShellCouldNotBeStarted()
{
    LogCapture log;
    FakeProcessLauncher launcher;
    launcher.answer.reset();
    BatteryDataFromShell reader(launcher);
    reader.refresh();
    const QStringList lines {
        u"error: Shell task run failed: [\"LANG=C system_profiler SPPowerDataType\"]"_s,
        u"error: Not possible to read battery data shell"_s,
    };
    QCOMPARE(log.take(), lines);
    QCOMPARE(reader.maxCapacity(), std::nullopt);
    QCOMPARE(reader.condition(), std::nullopt);
    QCOMPARE(log.take(), QStringList());
}

void BatteryDataFromShellTest::printsTheWholeListOfArguments()
{
    LogCapture log;
    FakeProcessLauncher launcher;
    launcher.answer.reset();
    const BatteryDataFromShell reader(launcher);
    QCOMPARE(reader.runShell({ u"one"_s, u"t\"w\\o"_s }), std::nullopt);
    QCOMPARE(reader.runShell({}), std::nullopt);
    const QStringList lines { uR"(error: Shell task run failed: ["one", "t\"w\\o"])"_s,
                              u"error: Shell task run failed: []"_s };
    QCOMPARE(log.take(), lines);
}

void BatteryDataFromShellTest::forgetsAResponseWhenALaterRunFails()
{
    Bench bench(report);
    QVERIFY(bench.reader.response());
    LogCapture log;
    bench.launcher.answer.reset();
    bench.reader.refresh();
    QCOMPARE(log.take().size(), 2);
    QCOMPARE(bench.reader.response(), std::nullopt);
    QCOMPARE(bench.reader.maxCapacity(), std::nullopt);
    QCOMPARE(bench.reader.condition(), std::nullopt);
}

void BatteryDataFromShellTest::replacesBytesThatAreNotText()
{
    const Bench bench("Condition: Nor\xffmal\xc3\xa9");
    QCOMPARE(bench.reader.condition(), u"Nor\uFFFDmal\u00E9"_s);
}

void BatteryDataFromShellTest::trimsBothEnds()
{
    const Bench bench("\n\n \t\r\n  Condition: Normal\nMaximum Capacity: 87%\n \r\n\n");
    QCOMPARE(bench.reader.response(), u"Condition: Normal\nMaximum Capacity: 87%"_s);
    QCOMPARE(bench.reader.condition(), u"Normal"_s);
    QCOMPARE(bench.reader.maxCapacity(), 87);
}

void BatteryDataFromShellTest::takesAnEmptyOutputForAnEmptyText()
{
    LogCapture log;
    FakeProcessLauncher launcher;
    launcher.answer = " \n";
    BatteryDataFromShell reader(launcher);
    reader.refresh();
    QCOMPARE(reader.response(), u""_s);
    QCOMPARE(reader.maxCapacity(), std::nullopt);
    QCOMPARE(reader.condition(), std::nullopt);
    QCOMPARE(log.take(), QStringList({ success, noCapacity, noCondition }));
}

void BatteryDataFromShellTest::tellsOfEverySuccess()
{
    LogCapture log;
    FakeProcessLauncher launcher;
    BatteryDataFromShell reader(launcher);
    reader.refresh();
    reader.refresh();
    QCOMPARE(log.take(), QStringList({ success, success }));
}

void BatteryDataFromShellTest::readsBothFiguresFromOneRun()
{
    const Bench bench(report);
    QCOMPARE(bench.reader.maxCapacity(), 87);
    QCOMPARE(bench.reader.condition(), u"Normal"_s);
    QCOMPARE(bench.reader.maxCapacity(), 87);
    QCOMPARE(bench.launcher.runs.size(), 1);
}

void BatteryDataFromShellTest::readsAHealthyReport()
{
    const Bench bench("Maximum Capacity: 100%\nCondition: Normal\n");
    QCOMPARE(bench.reader.maxCapacity(), 100);
    QCOMPARE(bench.reader.condition(), u"Normal"_s);
}

void BatteryDataFromShellTest::readsAConditionThatAsksForService()
{
    const Bench bench("Condition: Service Recommended\nMaximum Capacity: 79%\n");
    QCOMPARE(bench.reader.condition(), u"Service Recommended"_s);
}

void BatteryDataFromShellTest::readsAConditionWithoutACapacity()
{
    const Bench bench("Cycle Count: 123\nCondition: Normal\n");
    LogCapture log;
    QCOMPARE(bench.reader.condition(), u"Normal"_s);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(bench.reader.maxCapacity(), std::nullopt);
    QCOMPARE(log.take(), QStringList(noCapacity));
}

void BatteryDataFromShellTest::finds_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("capacity");
    QTest::newRow("no range check") << QByteArray("Maximum Capacity: 250%") << qint64(250);
    QTest::newRow("zero") << QByteArray("Maximum Capacity: 0%") << qint64(0);
    QTest::newRow("leading zeros") << QByteArray("Maximum Capacity: 087%") << qint64(87);
    QTest::newRow("no percent sign") << QByteArray("Maximum Capacity: 87") << qint64(87);
    QTest::newRow("up to a fraction") << QByteArray("Maximum Capacity: 87.9%") << qint64(87);
    QTest::newRow("first of two") << QByteArray("Maximum Capacity: 87%\nMaximum Capacity: 12%")
                                  << qint64(87);
    QTest::newRow("first that matches")
        << QByteArray("Maximum Capacity: %\nMaximum Capacity: 12%") << qint64(12);
}

void BatteryDataFromShellTest::finds()
{
    QFETCH(const QByteArray, text);
    QFETCH(const qint64, capacity);
    QCOMPARE(Bench(text).reader.maxCapacity(), capacity);
}

void BatteryDataFromShellTest::findsNoCapacityIn_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no digits") << QByteArray("Maximum Capacity: %");
    QTest::newRow("other case") << QByteArray("maximum capacity: 87%");
    QTest::newRow("no blank") << QByteArray("Maximum Capacity:87%");
    QTest::newRow("two blanks") << QByteArray("Maximum Capacity:  87%");
    QTest::newRow("negative") << QByteArray("Maximum Capacity: -87%");
    QTest::newRow("digits of another script") << QByteArray("Maximum Capacity: \xd9\xa8\xd9\xa7%");
    QTest::newRow("between the slashes of the pattern") << QByteArray("/Maximum Capacity: /87/");
}

void BatteryDataFromShellTest::findsNoCapacityIn()
{
    QFETCH(const QByteArray, text);
    const Bench bench(text);
    LogCapture log;
    QCOMPARE(bench.reader.maxCapacity(), std::nullopt);
    QCOMPARE(log.take(), QStringList(noCapacity));
}

void BatteryDataFromShellTest::cannotConvertTwentyNines()
{
    const Bench bench("Maximum Capacity: 99999999999999999999%");
    LogCapture log;
    QCOMPARE(bench.reader.maxCapacity(), std::nullopt);
    QCOMPARE(log.take(), QStringList(noInteger));
}

void BatteryDataFromShellTest::readsTheGreatestCapacityThatFits()
{
    QCOMPARE(Bench("Maximum Capacity: 9223372036854775807%").reader.maxCapacity(),
             9223372036854775807);
    const Bench bench("Maximum Capacity: 9223372036854775808%");
    LogCapture log;
    QCOMPARE(bench.reader.maxCapacity(), std::nullopt);
    QCOMPARE(log.take(), QStringList(noInteger));
}

void BatteryDataFromShellTest::findsTheConditionToTheEndOfItsLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("condition");
    QTest::newRow("first of two") << QByteArray("Condition: Normal\nCondition: Fair")
                                  << u"Normal"_s;
    QTest::newRow("empty") << QByteArray("Condition: \nCycle Count: 1") << u""_s;
    QTest::newRow("blanks stay") << QByteArray("Condition:  Normal \nCycle Count: 1")
                                 << u" Normal "_s;
    QTest::newRow("carriage return")
        << QByteArray("Condition: Normal\r\nCycle Count: 1\r\n") << u"Normal"_s;
    QTest::newRow("within a line") << QByteArray("Battery Condition: Normal") << u"Normal"_s;
    QTest::newRow("with a slash") << QByteArray("Condition: Fair/Normal/") << u"Fair/Normal/"_s;
}

void BatteryDataFromShellTest::findsTheConditionToTheEndOfItsLine()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, condition);
    QCOMPARE(Bench(text).reader.condition(), condition);
}

void BatteryDataFromShellTest::findsNoConditionIn_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("other line") << QByteArray("Maximum Capacity: 87%");
    QTest::newRow("other case") << QByteArray("condition: Normal");
    QTest::newRow("no blank") << QByteArray("Condition:Normal");
}

void BatteryDataFromShellTest::findsNoConditionIn()
{
    QFETCH(const QByteArray, text);
    const Bench bench(text);
    LogCapture log;
    QCOMPARE(bench.reader.condition(), std::nullopt);
    QCOMPARE(log.take(), QStringList(noCondition));
}

FERRIN_TEST(QCoreApplication, BatteryDataFromShellTest)
#include "test_batterydatafromshell.moc"
