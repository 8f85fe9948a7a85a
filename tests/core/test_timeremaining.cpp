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

constexpr BatteryTime standing { 7, 7 };

enum class State { discharging, charging, charged, finishingCharge, unknown };

void putInto(ProviderBench &bench, State state)
{
    const bool external = state != State::discharging;
    bench.set("ExternalConnected", external);
    bench.set("IsCharging", state == State::charging || state == State::finishingCharge);
    bench.set("FullyCharged", state == State::charged);
    bench.set("CurrentCapacity", state == State::finishingCharge ? 100 : 50);
    if (state == State::unknown)
        bench.remove("FullyCharged");
}

} // namespace

class TimeRemainingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesTheQuality_data();
    void judgesTheQuality();
    void distrustsSourcesThatDisagree_data();
    void distrustsSourcesThatDisagree();
    void keepsTheLastTimeWhileTheSourcesDisagree();
    void asksForNoEstimateWhereItIsFrozenAnyway();
    void asksForTheTimeToFullFirst();
    void freezesWithoutATimeInTheRegistry_data();
    void freezesWithoutATimeInTheRegistry();
    void writesTheQualityOnlyWhenItDiffers();
    void takesTheRegistrysTimeWhenItIsReal_data();
    void takesTheRegistrysTimeWhenItIsReal();
    void estimatesTheTimeToEmptyWhileTheSystemIsStillCalculating();
    void estimatesTheTimeToFullWhileTheSystemIsStillCalculating();
    void keepsTheTimeThatStandsWhenItCannotEstimate();
    void keepsTheTimeWhenBothEstimatesAreZero();
    void knowsHowLongAFullBatteryLasts_data();
    void knowsHowLongAFullBatteryLasts();
    void keepsTheTimeOfAFullBatteryOfUnknownCapacity();
    void knowsNoTimeInAnUnknownState();
    void followsTheFreshSnapshotOfTheSameRefresh();
};

void TimeRemainingTest::judgesTheQuality_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QVariant>("toEmpty");
    QTest::addColumn<QVariant>("toFull");
    QTest::addColumn<TimeQuality>("quality");
    const auto row
        = [](const char *name, State state, const QVariant &toEmpty, const QVariant &toFull,
             TimeQuality quality) { QTest::newRow(name) << state << toEmpty << toFull << quality; };
    const QVariant missing;
    using enum TimeQuality;
    row("discharging", State::discharging, 135, 0, real);
    row("discharging, to full is calculating", State::discharging, 135, -1, real);
    row("discharging, to empty is zero", State::discharging, 0, 45, real);
    row("discharging, calculating", State::discharging, -1, 0, estimated);
    row("discharging, calculating both", State::discharging, -1, -1, estimated);
    row("discharging, both zero", State::discharging, 0, 0, frozen);
    row("discharging, to empty missing", State::discharging, missing, 0, estimated);
    row("discharging, to full missing", State::discharging, 135, missing, estimated);
    row("discharging, to empty a text", State::discharging, u"135"_s, 0, estimated);
    row("discharging, to full a fraction", State::discharging, 135, 0.5, estimated);
    row("charging", State::charging, 0, 45, real);
    row("charging, to empty is calculating", State::charging, -1, 45, real);
    row("charging, to full is zero", State::charging, -1, 0, real);
    row("charging, calculating", State::charging, 0, -1, estimated);
    row("charging, both zero", State::charging, 0, 0, frozen);
    row("charging, both missing", State::charging, missing, missing, estimated);
    row("charged", State::charged, 135, 45, estimated);
    row("charged, both zero", State::charged, 0, 0, frozen);
    row("finishing", State::finishingCharge, 135, 45, estimated);
    row("finishing, both zero", State::finishingCharge, 0, 0, frozen);
    row("unknown", State::unknown, 135, 45, estimated);
    row("unknown, both zero", State::unknown, 0, 0, frozen);
    row("unknown, one missing", State::unknown, 0, missing, estimated);
}

void TimeRemainingTest::judgesTheQuality()
{
    QFETCH(const State, state);
    QFETCH(const QVariant, toEmpty);
    QFETCH(const QVariant, toFull);
    ProviderBench bench;
    putInto(bench, state);
    bench.setEstimates(toEmpty, toFull);
    bench.start();
    bench.log.ignoreRest();
    QTEST(bench.data->timeRemainingQuality(), "quality");
}

void TimeRemainingTest::distrustsSourcesThatDisagree_data()
{
    QTest::addColumn<QVariant>("external");
    QTest::addColumn<bool>("charging");
    QTest::addColumn<TimeQuality>("quality");
    QTest::newRow("charging on battery power") << QVariant(false) << true << TimeQuality::frozen;
    QTest::newRow("discharging on external power")
        << QVariant(true) << false << TimeQuality::frozen;
    QTest::newRow("charging on unknown power") << QVariant() << true << TimeQuality::real;
    QTest::newRow("discharging on unknown power") << QVariant() << false << TimeQuality::real;
}

void TimeRemainingTest::distrustsSourcesThatDisagree()
{
    QFETCH(const QVariant, external);
    QFETCH(const bool, charging);
    ProviderBench bench;
    bench.set("ExternalConnected", external);
    bench.set("IsCharging", charging);
    bench.setEstimates(135, 45);
    bench.start();
    bench.log.ignoreRest();
    QTEST(bench.data->timeRemainingQuality(), "quality");
}

void TimeRemainingTest::keepsTheLastTimeWhileTheSourcesDisagree()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 15 }));
    bench.set("ExternalConnected", true);
    bench.set("TimeRemaining", 50);
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 15 }));
    bench.set("ExternalConnected", false);
    // A time to empty is none to full.
    bench.set("IsCharging", true);
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == BatteryTime());
    bench.set("IsCharging", false);
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 0, 50 }));
}

void TimeRemainingTest::asksForNoEstimateWhereItIsFrozenAnyway()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.powerSources.snapshots = 0;
    bench.set("IsCharging", true);
    bench.refresh();
    QCOMPARE(bench.powerSources.snapshots, 0);
    bench.set("IsCharging", false);
    bench.remove("TimeRemaining");
    bench.refresh();
    QCOMPARE(bench.powerSources.snapshots, 0);
    bench.set("TimeRemaining", 135);
    bench.refresh();
    QCOMPARE(bench.powerSources.snapshots, 2);
}

void TimeRemainingTest::asksForTheTimeToFullFirst()
{
    // The battery changes its state between the two calls.
    class Changing final : public PowerSourcesService
    {
    public:
        Snapshot copyInfo() override { return std::make_shared<int>(++reads); }
        std::optional<QList<SourceHandle>> copyList(const Snapshot &) override { return { { 1 } }; }
        QVariant description(const Snapshot &, SourceHandle) override
        {
            return reads % 2 == 0 ? test::FakePowerSources::battery(135, u"first"_s)
                                  : test::FakePowerSources::battery(u"second"_s, 0);
        }
        int reads = 0;
    } changing;
    ProviderBench bench;
    bench.log.ignoreRest();
    BatteryDataProvider provider(
        { bench.registry, changing, bench.launcher, bench.platform().storedData });
    QCOMPARE(changing.reads, 3);
    // The first read is that of the start; the second is for the time to full, the third to empty.
    QCOMPARE(provider.data()->timeRemainingQuality(), TimeQuality::estimated);
    provider.updatePeriodicData();
    QCOMPARE(changing.reads, 5);
}

void TimeRemainingTest::freezesWithoutATimeInTheRegistry_data()
{
    QTest::addColumn<QVariant>("remaining");
    QTest::newRow("missing") << QVariant();
    QTest::newRow("a text") << QVariant(u"135"_s);
    QTest::newRow("a bool") << QVariant(true);
}

void TimeRemainingTest::freezesWithoutATimeInTheRegistry()
{
    QFETCH(const QVariant, remaining);
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.data->setTimeRemaining(standing);
    bench.set("TimeRemaining", remaining);
    bench.refresh();
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::frozen);
    QVERIFY(bench.data->timeRemaining() == standing);
}

void TimeRemainingTest::writesTheQualityOnlyWhenItDiffers()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    QSignalSpy spy(bench.data, &BatteryData::timeRemainingQualityChanged);
    bench.set("TimeRemaining", 100);
    bench.refresh();
    QCOMPARE(spy.size(), 0);
    bench.setEstimates(-1, 0);
    bench.refresh();
    bench.refresh();
    QCOMPARE(spy.size(), 1);
}

void TimeRemainingTest::takesTheRegistrysTimeWhenItIsReal_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("remaining");
    QTest::addColumn<BatteryTime>("time");
    QTest::newRow("charging") << State::charging << 135 << BatteryTime { 2, 15 };
    QTest::newRow("discharging") << State::discharging << 135 << BatteryTime { 2, 15 };
    QTest::newRow("under an hour") << State::discharging << 59 << BatteryTime { 0, 59 };
    QTest::newRow("whole hours") << State::charging << 120 << BatteryTime { 2, 0 };
    QTest::newRow("zero") << State::discharging << 0 << BatteryTime { 0, 0 };
    QTest::newRow("negative") << State::discharging << -61 << BatteryTime { -1, -1 };
    QTest::newRow("the largest 16 bits") << State::charging << 65535 << BatteryTime { 1092, 15 };
}

void TimeRemainingTest::takesTheRegistrysTimeWhenItIsReal()
{
    QFETCH(const State, state);
    QFETCH(const int, remaining);
    QFETCH(const BatteryTime, time);
    ProviderBench bench;
    putInto(bench, state);
    bench.set("TimeRemaining", remaining);
    // Neither estimate is shown: they only decide the quality of the registry's time.
    bench.setEstimates(11, 12);
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::real);
    QCOMPARE(bench.data->timeRemaining().hours, time.hours);
    QCOMPARE(bench.data->timeRemaining().minutes, time.minutes);
}

void TimeRemainingTest::estimatesTheTimeToEmptyWhileTheSystemIsStillCalculating()
{
    ProviderBench bench;
    bench.setEstimates(-1, 0);
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::estimated);
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 16, 0 }));
}

void TimeRemainingTest::estimatesTheTimeToFullWhileTheSystemIsStillCalculating()
{
    ProviderBench bench;
    putInto(bench, State::charging);
    bench.setEstimates(0, -1);
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::estimated);
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 0 }));
    bench.setAdapter({ { u"Current"_s, 3500 } });
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 1, 0 }));
}

void TimeRemainingTest::keepsTheTimeThatStandsWhenItCannotEstimate()
{
    ProviderBench bench;
    bench.setEstimates(-1, 0);
    bench.start();
    bench.log.ignoreRest();
    bench.data->setTimeRemaining(standing);
    bench.remove("AppleRawMaxCapacity");
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == standing);
}

void TimeRemainingTest::keepsTheTimeWhenBothEstimatesAreZero()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.setEstimates(0, 0);
    bench.set("TimeRemaining", 50);
    bench.refresh();
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::frozen);
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 15 }));
    putInto(bench, State::charging);
    bench.refresh();
    QCOMPARE(bench.data->timeRemainingQuality(), TimeQuality::frozen);
    QVERIFY(bench.data->timeRemaining() == BatteryTime());
}

void TimeRemainingTest::knowsHowLongAFullBatteryLasts_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<bool>("hasRegistryTime");
    QTest::addColumn<BatteryTime>("time");
    QTest::newRow("charged") << State::charged << 6000 << true << BatteryTime { 20, 0 };
    QTest::newRow("finishing") << State::finishingCharge << 6000 << true << BatteryTime { 20, 0 };
    QTest::newRow("however frozen") << State::charged << 6000 << false << BatteryTime { 20, 0 };
    // In double precision the minutes would be 3 and 5.
    QTest::newRow("single precision") << State::charged << 4815 << true << BatteryTime { 16, 2 };
    QTest::newRow("rounded up in single precision")
        << State::charged << 4825 << true << BatteryTime { 16, 5 };
    QTest::newRow("zero") << State::charged << 0 << true << BatteryTime { 0, 0 };
}

void TimeRemainingTest::knowsHowLongAFullBatteryLasts()
{
    QFETCH(const State, state);
    QFETCH(const int, capacity);
    QFETCH(const bool, hasRegistryTime);
    QFETCH(const BatteryTime, time);
    ProviderBench bench;
    putInto(bench, state);
    bench.set("AppleRawMaxCapacity", capacity);
    if (!hasRegistryTime)
        bench.remove("TimeRemaining");
    bench.start();
    bench.log.ignoreRest();
    QCOMPARE(bench.data->timeRemaining().hours, time.hours);
    QCOMPARE(bench.data->timeRemaining().minutes, time.minutes);
}

void TimeRemainingTest::keepsTheTimeOfAFullBatteryOfUnknownCapacity()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.remove("AppleRawMaxCapacity");
    QSignalSpy spy(bench.data, &BatteryData::timeRemainingChanged);
    for (const State state : { State::charged, State::finishingCharge }) {
        putInto(bench, state);
        bench.refresh();
        QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 15 }));
    }
    QCOMPARE(spy.size(), 0);
}

void TimeRemainingTest::knowsNoTimeInAnUnknownState()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    bench.remove("IsCharging");
    bench.refresh();
    QCOMPARE(bench.data->chargingStatus(), BatteryChargingStatus::unknown);
    QVERIFY(bench.data->timeRemaining() == BatteryTime());
}

void TimeRemainingTest::followsTheFreshSnapshotOfTheSameRefresh()
{
    ProviderBench bench;
    bench.start();
    bench.log.ignoreRest();
    putInto(bench, State::charging);
    bench.setEstimates(0, -1);
    bench.setAdapter({ { u"Current"_s, 1500 } });
    bench.set("AppleRawMaxCapacity", 4000);
    bench.refresh();
    QVERIFY(bench.data->timeRemaining() == (BatteryTime { 2, 0 }));
}

FERRIN_TEST(QCoreApplication, TimeRemainingTest)
#include "test_timeremaining.moc"
