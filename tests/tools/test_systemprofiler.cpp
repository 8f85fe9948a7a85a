// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/fakesysfs.h"

#include <QFileInfo>
#include <QProcess>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

/// The program itself, on a sysfs that umockdev's library provides.
class SystemProfilerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsTheBatteryOfTheMachine();
    void printsNoBatteryWithoutOne();
    void endsByItselfWhenSysfsHangs();
    void isNotHeldUpByAPipeInAFilesPlace();
    void refusesOtherReports_data();
    void refusesOtherReports();

private:
    struct Ended
    {
        int code = -1;
        QString output;
    };
    static Ended run(const test::FakeSysfs &sysfs, const QStringList &arguments,
                     const QString &driver = {});
};

SystemProfilerTest::Ended SystemProfilerTest::run(const test::FakeSysfs &sysfs,
                                                  const QStringList &arguments,
                                                  const QString &driver)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"UMOCKDEV_DIR"_s, QFileInfo(QString::fromStdString(sysfs.root())).path());
    environment.insert(u"LD_PRELOAD"_s, driver + u" libumockdev-preload.so.0"_s);
    // The sanitizers require to be loaded first; disable that check.
    environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(SYSTEM_PROFILER), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()) };
}

void SystemProfilerTest::printsTheBatteryOfTheMachine()
{
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(u"samsung-sr-real-battery"_s));
    const Ended ended = run(sysfs, { u"SPPowerDataType"_s });
    QCOMPARE(ended.code, 0);
    QVERIFY(ended.output.contains("Maximum Capacity: 74%\n"_L1));
    QVERIFY(ended.output.contains("Condition: Service Recommended\n"_L1));
    QVERIFY(ended.output.contains("Cycle Count: 547\n"_L1));
}

void SystemProfilerTest::printsNoBatteryWithoutOne()
{
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(u"logitech-m510-mouse"_s));
    const Ended ended = run(sysfs, { u"SPPowerDataType"_s });
    QCOMPARE(ended.code, 0);
    QCOMPARE(ended.output, u"Power:\n"_s);
}

void SystemProfilerTest::endsByItselfWhenSysfsHangs()
{
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(u"samsung-sr-real-battery"_s));
    const Ended ended = run(sysfs, { u"SPPowerDataType"_s }, QStringLiteral(HANGING_DRIVER));
    QCOMPARE(ended.code, 1);
    QCOMPARE(ended.output, QString());
}

void SystemProfilerTest::isNotHeldUpByAPipeInAFilesPlace()
{
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(u"samsung-sr-real-battery"_s));
    sysfs.remove(u"class/power_supply/BAT1/voltage_now"_s);
    sysfs.writePipe(u"class/power_supply/BAT1/voltage_now"_s);
    const Ended ended = run(sysfs, { u"SPPowerDataType"_s });
    QCOMPARE(ended.code, 0);
    QVERIFY(ended.output.contains("Maximum Capacity: 74%\n"_L1));
}

void SystemProfilerTest::refusesOtherReports_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("none") << QStringList();
    QTest::newRow("another") << QStringList { u"SPAudioDataType"_s };
    QTest::newRow("two") << QStringList { u"SPPowerDataType"_s, u"SPPowerDataType"_s };
}

void SystemProfilerTest::refusesOtherReports()
{
    QFETCH(QStringList, arguments);
    test::FakeSysfs sysfs;
    sysfs.load(test::FakeSysfs::record(u"samsung-sr-real-battery"_s));
    const Ended ended = run(sysfs, arguments);
    QCOMPARE(ended.code, 1);
    QCOMPARE(ended.output, QString());
}

QTEST_GUILESS_MAIN(SystemProfilerTest)
#include "test_systemprofiler.moc"
