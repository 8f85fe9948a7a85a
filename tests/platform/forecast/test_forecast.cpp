// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/forecast.h"
#include "tests/support/testmain.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace ferrin;
using namespace std::chrono_literals;

namespace {

using Flow = PackMoment::Flow;

/// A laptop with a battery of 50 Wh, read every five seconds.
struct Machine
{
    explicit Machine(const QString &memory = {})
        : forecast(memory)
    {
    }

    // Runs for so long at so many watts (negative while charging); the last time shown.
    int run(double watts, std::chrono::seconds span, bool hasRate = true, double step = 0)
    {
        int shown = -1;
        for (auto passed = 0s; passed < span; passed += 5s) {
            clocks.awake += 5s;
            clocks.elapsed += 5s;
            now -= watts * Hours(5s).count();
            const double said = step > 0 ? std::floor(now / step) * step : now;
            shown = look(said, watts, hasRate);
            if (firstShown == -1)
                firstShown = shown;
        }
        return shown;
    }

    int look(double said, double watts, bool hasRate)
    {
        PackMoment pack { .key = "a",
                          .flow = watts > 0 ? Flow::Discharging : Flow::Charging,
                          .now = said,
                          .full = 50,
                          .rate = {},
                          .limit = limit };
        if (hasRate)
            pack.rate = std::abs(watts);
        const auto direction = watts > 0 ? Direction::ToEmpty : Direction::ToFull;
        const auto time = forecast.update({ pack }, direction, watts < 0, clocks);
        return time ? int(time->count()) : -1;
    }

    void rest(std::chrono::minutes span, bool plugged)
    {
        for (auto passed = 0s; passed < span; passed += 5s) {
            clocks.awake += 5s;
            clocks.elapsed += 5s;
            forecast.update({ { .key = "a", .now = now, .full = 50, .rate = {}, .limit = limit } },
                            {}, plugged, clocks);
        }
    }

    void sleep(std::chrono::minutes span, double lost)
    {
        clocks.elapsed += span;
        now -= lost;
    }

    Forecast forecast;
    Clocks clocks { 1h, 1h };
    double now = 40;
    std::optional<int> limit;
    int firstShown = -1;
};

bool isNear(int shown, double wanted, double share = 0.08)
{
    return std::abs(shown - wanted) <= wanted * share + 1;
}

} // namespace

class ForecastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dividesWhatIsLeftByTheLoad()
    {
        Machine machine;
        QVERIFY(isNear(machine.run(10, 5s), 240));
    }

    void livesOnTheChargesOwnFallWhereNoRateIsTold()
    {
        Machine machine;
        QCOMPARE(machine.run(10, 60s, false, 0.5), -1);
        const int shown = machine.run(10, 20min, false, 0.5);
        QVERIFY(isNear(shown, machine.now * 6));
    }

    void doesNotBelieveARateThatIsFrozen()
    {
        Machine machine;
        for (int i = 0; i < 12 * 60; ++i) {
            machine.clocks.awake += 5s;
            machine.clocks.elapsed += 5s;
            machine.now -= 10 * Hours(5s).count();
            static_cast<void>(machine.look(machine.now, 3, true));
        }
        QVERIFY(isNear(machine.look(machine.now, 3, true), machine.now * 6));
    }

    void isCalmWhileTheLoadVaries()
    {
        Machine machine;
        machine.run(10, 20min);
        const int before = machine.run(10, 5s);
        const int after = machine.run(25, 60s);
        QVERIFY(std::abs(after - before) <= before / 10);
    }

    void followsALoadThatHasReallyChanged()
    {
        Machine machine;
        machine.run(5, 40min);
        const int shown = machine.run(20, 15min);
        QVERIFY(isNear(shown, machine.now * 3, 0.15));
    }

    void countsNoSleepAsLoad()
    {
        Machine machine;
        const int before = machine.run(10, 20min);
        machine.sleep(120min, 4);
        QVERIFY(isNear(machine.run(10, 5s), before - 24, 0.1));
    }

    void followsAGaugeThatLeaps()
    {
        Machine machine;
        machine.now = 5.5;
        machine.run(10, 5min);
        machine.now = 2.5;
        QVERIFY(isNear(machine.run(10, 5s), 15, 0.15));
    }

    void livesWithAGaugeThatSticks()
    {
        Machine machine;
        machine.run(10, 20min);
        for (int i = 0; i < 720; ++i) {
            machine.clocks.awake += 5s;
            machine.clocks.elapsed += 5s;
            const int shown = machine.look(20, 10, true);
            QVERIFY(shown > 0 && shown <= 48 * 60);
        }
    }

    void knowsTheUsualDrawRightAfterUnplugging()
    {
        Machine machine;
        machine.run(8, 60min, false, 0.5);
        machine.run(-20, 10min, false, 0.5);
        const int shown = machine.run(8, 5s, false, 0.5);
        QVERIFY(isNear(shown, machine.now / 8 * 60, 0.1));
    }

    void neverShowsATimeOfTheOtherDirection()
    {
        Machine machine;
        machine.run(-20, 20min, false, 0.5);
        QCOMPARE(machine.run(8, 5s, false, 0.5), -1);
    }

    void remembersAcrossStarts()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("ferrin/batteries.json"));
        {
            Machine machine(path);
            machine.run(8, 60min, false, 0.5);
        }
        Machine machine(path);
        QVERIFY(isNear(machine.run(8, 5s, false, 0.5), 300, 0.1));
    }

    void hasItsFullAtTheLimit()
    {
        Machine free;
        Machine limited;
        limited.limit = 80;
        free.now = limited.now = 25;
        const int whole = free.run(-25, 5min);
        const int part = limited.run(-25, 5min);
        QVERIFY(part < whole / 2);
        // 27.08 Wh to 37.5 Wh at 25 W.
        QVERIFY(part <= 40);
    }

    void learnsWhereChargingStops()
    {
        Machine machine;
        machine.now = 25;
        machine.run(-20, 37min);
        machine.rest(10min, true);
        const PackMoment pack {
            .key = "a", .now = machine.now, .full = 50, .rate = {}, .limit = {}
        };
        QVERIFY(machine.forecast.limit({ pack }));
        QVERIFY(std::abs(*machine.forecast.limit({ pack }) - 75) <= 1);
        // Once it is passed it is none.
        machine.run(-20, 10min);
        QVERIFY(!machine.forecast.limit({ pack }));
    }

    void takesForAStopOnlyWhatMayBeOne_data()
    {
        // In percent: where charging ended, and where the battery then rested.
        QTest::addColumn<int>("charged");
        QTest::addColumn<int>("rested");
        QTest::addColumn<std::optional<int>>("stop");
        QTest::newRow("the lowest") << 40 << 40 << std::optional(40);
        QTest::newRow("below that") << 39 << 39 << std::optional<int>();
        QTest::newRow("the highest") << 97 << 97 << std::optional(97);
        QTest::newRow("above that") << 98 << 98 << std::optional<int>();
        QTest::newRow("a percent below the end") << 75 << 74 << std::optional(74);
        QTest::newRow("a percent above it") << 75 << 76 << std::optional(76);
        QTest::newRow("two percent below") << 75 << 73 << std::optional<int>();
        QTest::newRow("two percent above") << 75 << 77 << std::optional<int>();
    }

    void takesForAStopOnlyWhatMayBeOne()
    {
        QFETCH(int, charged);
        QFETCH(int, rested);
        Machine machine;
        machine.now = charged * 0.5;
        machine.run(-0.001, 1min);
        machine.now = rested * 0.5;
        machine.rest(10min, true);
        const PackMoment pack {
            .key = "a", .now = machine.now, .full = 50, .rate = {}, .limit = {}
        };
        QTEST(machine.forecast.limit({ pack }), "stop");
    }

    void keepsALimitThroughTheNextCharge()
    {
        Machine machine;
        machine.now = 25;
        machine.run(-20, 37min);
        machine.rest(10min, true);
        machine.run(8, 30min);
        machine.run(-20, 12min);
        const PackMoment pack {
            .key = "a", .now = machine.now, .full = 50, .rate = {}, .limit = {}
        };
        QCOMPARE(machine.forecast.limit({ pack }), 75);
    }

    void tellsTheTimeAvailableAtTheUsualDraw()
    {
        Machine machine;
        machine.run(8, 60min);
        machine.rest(1min, true);
        QVERIFY(isNear(int(machine.forecast.available()->count()), machine.now / 8 * 60));
        Machine unknown;
        unknown.rest(1min, true);
        QVERIFY(!unknown.forecast.available());
    }

    void sumsPacksThatAreDrainedInTurn()
    {
        Forecast forecast { QString() };
        const std::vector<PackMoment> packs {
            { .key = "a",
              .flow = Flow::Discharging,
              .now = 10,
              .full = 20,
              .rate = 10,
              .limit = {} },
            { .key = "b", .flow = Flow::Resting, .now = 30, .full = 40, .rate = {}, .limit = {} },
        };
        QCOMPARE(forecast.update(packs, Direction::ToEmpty, false, { 1h, 1h }), 240min);
    }

    void chargesPacksOneAfterTheOther()
    {
        const auto minutes = [](bool two, std::optional<int> limit = {}) {
            Forecast forecast { QString() };
            std::vector<PackMoment> packs { { .key = "a",
                                              .flow = Flow::Charging,
                                              .now = 10,
                                              .full = 20,
                                              .rate = 10,
                                              .limit = {} } };
            if (two)
                packs.push_back({ .key = "b",
                                  .flow = Flow::Resting,
                                  .now = 5,
                                  .full = 20,
                                  .rate = {},
                                  .limit = limit });
            return forecast.update(packs, Direction::ToFull, true, { 1h, 1h })->count();
        };
        QVERIFY(minutes(true) > minutes(false) * 2);
        // One that is at its limit is not waited for.
        QCOMPARE(minutes(true, 25), minutes(false));
        QVERIFY(minutes(true, 80) > minutes(false));
    }

    void livesWithAPackThatJoinsAndLeaves()
    {
        Machine machine;
        const int before = machine.run(10, 20min);
        PackMoment own { .key = "a",
                         .flow = Flow::Discharging,
                         .now = machine.now,
                         .full = 50,
                         .rate = 10,
                         .limit = {} };
        const PackMoment other { .key = "b", .now = 20, .full = 25, .rate = {}, .limit = {} };
        machine.clocks.awake += 5s;
        machine.clocks.elapsed += 5s;
        const auto both
            = machine.forecast.update({ own, other }, Direction::ToEmpty, false, machine.clocks);
        QVERIFY(isNear(int(both->count()), before + 120, 0.1));
        machine.clocks.awake += 5s;
        machine.clocks.elapsed += 5s;
        const auto one
            = machine.forecast.update({ own }, Direction::ToEmpty, false, machine.clocks);
        QVERIFY(isNear(int(one->count()), before, 0.1));
    }

    void hasNoTimeForNoBattery()
    {
        Forecast forecast { QString() };
        QVERIFY(!forecast.update({}, Direction::ToEmpty, false, { 1h, 1h }));
        QVERIFY(!forecast.update({}, Direction::ToFull, true, { 1h, 1h }));
    }
};

FERRIN_TEST(QCoreApplication, ForecastTest)
#include "test_forecast.moc"
