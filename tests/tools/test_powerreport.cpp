// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tools/powerreport.h"

#include <QRegularExpression>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class PowerReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsCapacityAndConditionInTheFormThatIsLookedFor();
    void recommendsServiceBelow80Percent_data();
    void recommendsServiceBelow80Percent();
    void recommendsServiceWhenTheKernelSaysSo_data();
    void recommendsServiceWhenTheKernelSaysSo();
    void takesPassingStatesForNoFault_data();
    void takesPassingStatesForNoFault();
    void showsAtMost100Percent();
    void leavesOutACapacityWithoutAUsableDesign_data();
    void leavesOutACapacityWithoutAUsableDesign();
    void saysNormalWhereTheKernelCallsThePackGood();
    void putsTheWorstPackFirst();
    void leavesOutSlotsWithoutAPack();
    void hasNoBatterySectionWithoutABattery();
};

namespace {

struct Machine
{
    PowerSupplies supplies;
    std::vector<BatteryRecord> records;

    Machine &pack(const char *name, Reading full, Reading design, const char *health = "")
    {
        BatterySupply battery;
        battery.name = name;
        battery.status = ChargeStatus::Discharging;
        battery.energyFull = full;
        BatteryRecord record;
        record.name = name;
        record.energyFullDesign = design;
        record.health = health;
        supplies.batteries.push_back(battery);
        records.push_back(record);
        return *this;
    }

    [[nodiscard]] QString report() const
    {
        return QString::fromStdString(powerReport(supplies, records));
    }
};

QString first(const QString &report, const QString &pattern)
{
    return QRegularExpression(pattern).match(report).captured(1);
}

QString capacity(const Machine &machine)
{
    return first(machine.report(), u"Maximum Capacity: ([0-9]+)"_s);
}

QString condition(const Machine &machine)
{
    return first(machine.report(), u"Condition: (.*)"_s);
}

} // namespace

void PowerReportTest::printsCapacityAndConditionInTheFormThatIsLookedFor()
{
    const QString report = Machine().pack("BAT0", 43'500'000, 50'000'000).report();
    QVERIFY(report.contains("Battery Information:\n"_L1));
    QVERIFY(report.contains("Maximum Capacity: 87%\n"_L1));
    QVERIFY(report.contains("Condition: Normal\n"_L1));
    QVERIFY(report.contains("Connected: No\n"_L1));
}

void PowerReportTest::recommendsServiceBelow80Percent_data()
{
    QTest::addColumn<qlonglong>("full");
    QTest::addColumn<QString>("percent");
    QTest::addColumn<QString>("words");
    QTest::newRow("80") << 40'000'000LL << u"80"_s << u"Normal"_s;
    QTest::newRow("just below") << 39'999'999LL << u"79"_s << u"Service Recommended"_s;
    QTest::newRow("worn") << 3'800'000LL << u"7"_s << u"Service Recommended"_s;
}

void PowerReportTest::recommendsServiceBelow80Percent()
{
    QFETCH(qlonglong, full);
    const Machine machine = Machine().pack("BAT0", full, 50'000'000, "Good");
    QTEST(capacity(machine), "percent");
    QTEST(condition(machine), "words");
}

void PowerReportTest::recommendsServiceWhenTheKernelSaysSo_data()
{
    QTest::addColumn<QByteArray>("health");
    for (const char *health : { "Dead", "Overheat", "Over voltage", "Over current", "Blown fuse",
                                "Cell imbalance", "Unspecified failure", "Calibration required" })
        QTest::newRow(health) << QByteArray(health);
}

void PowerReportTest::recommendsServiceWhenTheKernelSaysSo()
{
    QFETCH(QByteArray, health);
    const Machine machine = Machine().pack("BAT0", 48'000'000, 50'000'000, health.constData());
    QCOMPARE(capacity(machine), u"96"_s);
    QCOMPARE(condition(machine), u"Service Recommended"_s);
}

void PowerReportTest::takesPassingStatesForNoFault_data()
{
    QTest::addColumn<QByteArray>("health");
    for (const char *health : { "Good", "Unknown", "Cold", "Warm", "Cool", "Hot", "",
                                "Watchdog timer expire", "\xff\xfe" })
        QTest::newRow(health) << QByteArray(health);
}

void PowerReportTest::takesPassingStatesForNoFault()
{
    QFETCH(QByteArray, health);
    const Machine machine = Machine().pack("BAT0", 48'000'000, 50'000'000, health.constData());
    QCOMPARE(condition(machine), u"Normal"_s);
}

void PowerReportTest::showsAtMost100Percent()
{
    const Machine machine = Machine().pack("BAT1", 61'800'000, 60'600'000);
    QCOMPARE(capacity(machine), u"100"_s);
    QCOMPARE(condition(machine), u"Normal"_s);
}

void PowerReportTest::leavesOutACapacityWithoutAUsableDesign_data()
{
    QTest::addColumn<qlonglong>("full");
    QTest::addColumn<qlonglong>("design");
    QTest::newRow("a copy") << 44'000'000LL << 44'000'000LL;
    QTest::newRow("zero") << 44'000'000LL << 0LL;
    QTest::newRow("negative") << 44'000'000LL << -1LL;
    QTest::newRow("far too small") << 44'000'000LL << 10'000'000LL;
    QTest::newRow("no full") << 0LL << 44'000'000LL;
    QTest::newRow("beyond any pack") << 44'000'000LL << 9'000'000'000'000LL;
}

void PowerReportTest::leavesOutACapacityWithoutAUsableDesign()
{
    QFETCH(qlonglong, full);
    QFETCH(qlonglong, design);
    const QString report = Machine().pack("BAT0", full, design).report();
    QVERIFY(!report.contains("Maximum Capacity"_L1));
    QVERIFY(!report.contains("Condition"_L1));
}

void PowerReportTest::saysNormalWhereTheKernelCallsThePackGood()
{
    const Machine machine = Machine().pack("BAT0", 44'000'000, 44'000'000, "Good");
    QCOMPARE(condition(machine), u"Normal"_s);
    QCOMPARE(capacity(machine), QString());
}

void PowerReportTest::putsTheWorstPackFirst()
{
    Machine machine;
    machine.pack("BAT0", 66'220'000, 71'040'000).pack("BAT1", 17'940'000, 31'920'000);
    machine.records[1].cycleCount = 236;
    QCOMPARE(capacity(machine), u"56"_s);
    QCOMPARE(condition(machine), u"Service Recommended"_s);
    QCOMPARE(machine.report().count("Maximum Capacity"_L1), 2);
    QCOMPARE(first(machine.report(), u"Cycle Count: ([0-9]+)"_s), u"236"_s);
}

void PowerReportTest::leavesOutSlotsWithoutAPack()
{
    const Machine machine = Machine().pack("BAT0", 0, 0).pack("BAT1", 41'000'000, 50'000'000);
    QVERIFY(!machine.report().contains("BAT0"_L1));
    QCOMPARE(capacity(machine), u"82"_s);
}

void PowerReportTest::hasNoBatterySectionWithoutABattery()
{
    QVERIFY(!Machine().report().contains("Battery"_L1));
}

QTEST_GUILESS_MAIN(PowerReportTest)
#include "test_powerreport.moc"
