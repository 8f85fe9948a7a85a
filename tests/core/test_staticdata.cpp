// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/core/providerbench.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::ProviderBench;

namespace {

const QString success = u"info: Connection to shell successful"_s;
const QString noCapacity
    = u"error: Not possible to read battery max capacity when parsing shell response"_s;
const QString noCondition
    = u"error: Not possible to read battery health condition when parsing shell response"_s;

} // namespace

class StaticDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsNothingBeforeItIsAsked();
    void readsTheCyclesAndTheReport();
    void forgetsTheCyclesWhenTheyGoMissing();
    void judgesTheHealthByTheCondition_data();
    void judgesTheHealthByTheCondition();
    void writesTheHealthOnlyWhenItDiffers();
    void forgetsWhatTheReportNoLongerSays();
    void forgetsTheReportWhenTheShellCannotBeStarted();
    void runsTheToolOnceForBothFigures();
    void readsTheCyclesBeforeItRunsTheTool();
    void keepsItsVerdictsWithoutABattery();
};

void StaticDataTest::knowsNothingBeforeItIsAsked()
{
    ProviderBench bench;
    bench.set("CycleCount", 123);
    bench.set("DesignCycleCount9C", 1000);
    bench.launcher.answer = "Maximum Capacity: 87%\nCondition: Normal";
    bench.start();
    bench.refresh();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->chargeCycles(), std::nullopt);
    QCOMPARE(bench.data->designCycles(), std::nullopt);
    QCOMPARE(bench.data->maxCapacity(), std::nullopt);
    QCOMPARE(bench.data->health(), BatteryHealth::unknown);
}

void StaticDataTest::readsTheCyclesAndTheReport()
{
    ProviderBench bench;
    bench.set("CycleCount", 123);
    bench.set("DesignCycleCount9C", 1000);
    bench.launcher.answer = "Maximum Capacity: 87%\nCondition: Normal";
    bench.start();
    std::ignore = bench.log.take();
    bench.provider->updateStaticData();
    QCOMPARE(bench.log.take(), QStringList(success));
    QCOMPARE(bench.data->chargeCycles(), 123);
    QCOMPARE(bench.data->designCycles(), 1000);
    QCOMPARE(bench.data->maxCapacity(), 87);
    QCOMPARE(bench.data->health(), BatteryHealth::normal);
    QCOMPARE(bench.data->lifespan(), BatteryLifespan::good);
}

void StaticDataTest::forgetsTheCyclesWhenTheyGoMissing()
{
    ProviderBench bench;
    bench.set("CycleCount", 123);
    bench.set("DesignCycleCount9C", 1000);
    bench.start();
    bench.log.ignoreRest();
    bench.provider->updateStaticData();
    bench.set("CycleCount", u"123"_s);
    bench.remove("DesignCycleCount9C");
    bench.provider->updateStaticData();
    QCOMPARE(bench.data->chargeCycles(), std::nullopt);
    QCOMPARE(bench.data->designCycles(), std::nullopt);
}

void StaticDataTest::judgesTheHealthByTheCondition_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<BatteryHealth>("health");
    const auto row = [](const char *report, BatteryHealth health) {
        QTest::newRow(report) << QByteArray(report) << health;
    };
    row("Condition: Normal", BatteryHealth::normal);
    row("Condition: NORMAL", BatteryHealth::normal);
    row("Condition: quite normal, really", BatteryHealth::normal);
    row("Condition: Abnormal", BatteryHealth::normal);
    row("Condition: Service Recommended", BatteryHealth::service);
    row("Condition: Norm al", BatteryHealth::service);
    row("Condition: \nNormal", BatteryHealth::service);
    row("Normal", BatteryHealth::unknown);
    row("", BatteryHealth::unknown);
}

void StaticDataTest::judgesTheHealthByTheCondition()
{
    QFETCH(const QByteArray, report);
    ProviderBench bench;
    bench.launcher.answer = report;
    bench.start();
    bench.log.ignoreRest();
    bench.provider->updateStaticData();
    QTEST(bench.data->health(), "health");
}

void StaticDataTest::writesTheHealthOnlyWhenItDiffers()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    QSignalSpy spy(bench.data, &BatteryData::healthChanged);
    bench.launcher.answer = "Condition: Normal";
    bench.provider->updateStaticData();
    bench.provider->updateStaticData();
    QCOMPARE(spy.size(), 1);
    bench.launcher.answer = "Condition: Replace Soon";
    bench.provider->updateStaticData();
    bench.launcher.answer = "Condition: Replace Now";
    bench.provider->updateStaticData();
    QCOMPARE(spy.size(), 2);
}

void StaticDataTest::forgetsWhatTheReportNoLongerSays()
{
    ProviderBench bench;
    bench.launcher.answer = "Maximum Capacity: 87%\nCondition: Normal";
    bench.start();
    bench.provider->updateStaticData();
    std::ignore = bench.log.take();
    bench.launcher.answer = "Power:";
    bench.provider->updateStaticData();
    QCOMPARE(bench.log.take(), QStringList({ success, noCapacity, noCondition }));
    QCOMPARE(bench.data->maxCapacity(), std::nullopt);
    QCOMPARE(bench.data->health(), BatteryHealth::unknown);
}

void StaticDataTest::forgetsTheReportWhenTheShellCannotBeStarted()
{
    ProviderBench bench;
    bench.launcher.answer = "Maximum Capacity: 87%\nCondition: Normal";
    bench.start();
    bench.provider->updateStaticData();
    std::ignore = bench.log.take();
    bench.launcher.answer.reset();
    bench.provider->updateStaticData();
    const QStringList lines {
        u"error: Shell task run failed: [\"LANG=C system_profiler SPPowerDataType\"]"_s,
        u"error: Not possible to read battery data shell"_s,
    };
    QCOMPARE(bench.log.take(), lines);
    QCOMPARE(bench.data->maxCapacity(), std::nullopt);
    QCOMPARE(bench.data->health(), BatteryHealth::unknown);
}

void StaticDataTest::runsTheToolOnceForBothFigures()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.provider->updateStaticData();
    const test::FakeProcessLauncher::Run run {
        u"/bin/sh"_s, { u"-c"_s, u"LANG=C system_profiler SPPowerDataType"_s }
    };
    QCOMPARE(bench.launcher.runs, QList { run });
    bench.provider->updateStaticData();
    QCOMPARE(bench.launcher.runs.size(), 2);
}

void StaticDataTest::readsTheCyclesBeforeItRunsTheTool()
{
    ProviderBench bench;
    bench.set("CycleCount", 123);
    bench.set("DesignCycleCount9C", 1000);
    bench.start();
    bench.log.ignoreRest();
    bench.registry.lookups.clear();
    QStringList lookupsByThen;
    qsizetype runsByThen = -1;
    connect(bench.data, &BatteryData::designCyclesChanged, this, [&] {
        lookupsByThen = bench.registry.lookups;
        runsByThen = bench.launcher.runs.size();
    });
    bench.provider->updateStaticData();
    QCOMPARE(lookupsByThen, QStringList({ u"CycleCount"_s, u"DesignCycleCount9C"_s }));
    QCOMPARE(runsByThen, 0);
    QCOMPARE(bench.registry.lookups, lookupsByThen);
}

void StaticDataTest::keepsItsVerdictsWithoutABattery()
{
    ProviderBench bench;
    bench.registry.serviceName.reset();
    bench.launcher.answer = "Power:";
    bench.start();
    std::ignore = bench.log.take();
    bench.data->setChargeCycles(5);
    bench.data->setDesignCycles(6);
    bench.data->setMaxCapacity(87);
    bench.data->setHealth(BatteryHealth::service);
    bench.provider->updateStaticData();
    // The tool is still run, but its report is not used.
    QCOMPARE(bench.log.take(), QStringList(success));
    QCOMPARE(bench.launcher.runs.size(), 1);
    QCOMPARE(bench.data->maxCapacity(), 87);
    QCOMPARE(bench.data->health(), BatteryHealth::service);
    QCOMPARE(bench.data->chargeCycles(), std::nullopt);
    QCOMPARE(bench.data->designCycles(), std::nullopt);
}

FERRIN_TEST(QCoreApplication, StaticDataTest)
#include "test_staticdata.moc"
