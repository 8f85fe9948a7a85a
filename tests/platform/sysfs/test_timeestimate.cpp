// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/timeestimate.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>

using namespace ferrin;
using namespace std::chrono_literals;

class TestTimeEstimate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dividesWhatIsLeftByTheRate();
    void dividesWhatIsMissingWhileCharging();
    void movesByAtMostAFifthInTheFirstMinuteOfAThreefoldLoad();
    void movesByAtMostAFifthWhenTheLoadFallsToAThird();
    void movesByAtMostAFifthAlsoWhereTheGaugeTellsTheTime();
    void reachesTheNewLoadInTheEnd();
    void doesNotDependOnHowOftenItIsRead();
    void answersWithATimeConstantOfFourMinutes();
    void isRawWhileCharging();
    void startsAnewWhenTheDirectionChanges();
    void keepsTheSmoothedLoadThroughAMissingSample();
    void isAbsentOutsideOfWhatABatteryCanDo_data();
    void isAbsentOutsideOfWhatABatteryCanDo();
    void prefersTheGaugesOwnTime();
    void livesOnPercentAndSecondsAlone();
    void sumsPacksAndTheirRates();
    void needsTheRateOfThePackAtWork();
    void ignoresTheRateOfAPackThatIsNotCharged();
    void isAbsentWithoutADirection();
};

namespace {
Pack pack(Reading now, Reading full, Reading rate, ChargeStatus status = ChargeStatus::Discharging)
{
    Pack made;
    made.status = status;
    made.now = now;
    made.full = full;
    made.rate = rate;
    return made;
}

// 50 Wh at so many watts.
std::vector<Pack> load(double watts)
{
    return { pack(50'000'000, 50'000'000, static_cast<qint64>(watts * 1e6)) };
}

std::optional<std::chrono::minutes> once(const std::vector<Pack> &packs, Direction direction)
{
    return TimeEstimate().update(packs, direction, 0s);
}

double minutes(std::optional<std::chrono::minutes> time)
{
    return time ? static_cast<double>(time->count()) : -1;
}
} // namespace

void TestTimeEstimate::dividesWhatIsLeftByTheRate()
{
    QCOMPARE(once({ pack(25'000'000, 50'000'000, 10'000'000) }, Direction::ToEmpty), 150min);
}

void TestTimeEstimate::dividesWhatIsMissingWhileCharging()
{
    const Pack charging = pack(20'000'000, 50'000'000, 20'000'000, ChargeStatus::Charging);
    QCOMPARE(once({ charging }, Direction::ToFull), 90min);
    const Pack full = pack(50'000'000, 50'000'000, 20'000'000, ChargeStatus::Charging);
    QCOMPARE(once({ full }, Direction::ToFull), 0min);
}

void TestTimeEstimate::movesByAtMostAFifthInTheFirstMinuteOfAThreefoldLoad()
{
    for (const double watts : { 3.0, 5.0, 10.0, 20.0 }) {
        TimeEstimate estimate;
        const double before = minutes(estimate.update(load(watts), Direction::ToEmpty, 0s));
        for (auto moment = 5s; moment <= 60s; moment += 5s) {
            const double now
                = minutes(estimate.update(load(3 * watts), Direction::ToEmpty, moment));
            QVERIFY(std::abs(now - before) <= before / 5);
        }
    }
}

void TestTimeEstimate::movesByAtMostAFifthWhenTheLoadFallsToAThird()
{
    TimeEstimate estimate;
    const double before = minutes(estimate.update(load(15), Direction::ToEmpty, 0s));
    const double after = minutes(estimate.update(load(5), Direction::ToEmpty, 60s));
    QVERIFY(after >= before);
    QVERIFY(after - before <= before / 5);
}

void TestTimeEstimate::movesByAtMostAFifthAlsoWhereTheGaugeTellsTheTime()
{
    TimeEstimate estimate;
    std::vector<Pack> packs = load(10);
    packs[0].timeToEmpty = 5 * 3600;
    const double before = minutes(estimate.update(packs, Direction::ToEmpty, 0s));
    QCOMPARE(before, 300.0);
    packs[0].timeToEmpty = 5 * 1200;
    const double after = minutes(estimate.update(packs, Direction::ToEmpty, 60s));
    QVERIFY(after < before);
    QVERIFY(before - after <= before / 5);
}

void TestTimeEstimate::reachesTheNewLoadInTheEnd()
{
    TimeEstimate estimate;
    QCOMPARE(estimate.update(load(10), Direction::ToEmpty, 0s), 300min);
    QCOMPARE(estimate.update(load(25), Direction::ToEmpty, 1h), 120min);
}

void TestTimeEstimate::doesNotDependOnHowOftenItIsRead()
{
    RateSmoother often;
    RateSmoother seldom;
    often.add(10, 0s);
    seldom.add(10, 0s);
    double result = 0;
    for (auto moment = 1s; moment <= 300s; ++moment)
        result = often.add(30, moment);
    QVERIFY(std::abs(result - seldom.add(30, 300s)) < 1e-9);
}

void TestTimeEstimate::answersWithATimeConstantOfFourMinutes()
{
    // The area above the answer to a step of one is its mean delay.
    RateSmoother smoother;
    smoother.add(0, 0s);
    double delay = 0;
    for (auto moment = 1s; moment <= 3600s; ++moment)
        delay += 1 - smoother.add(1, moment);
    QVERIFY(std::abs(delay - 240) < 2);
}

void TestTimeEstimate::isRawWhileCharging()
{
    TimeEstimate estimate;
    const auto charging = [](Reading rate) {
        return std::vector { pack(20'000'000, 50'000'000, rate, ChargeStatus::Charging) };
    };
    QCOMPARE(estimate.update(charging(30'000'000), Direction::ToFull, 0s), 60min);
    QCOMPARE(estimate.update(charging(10'000'000), Direction::ToFull, 5s), 180min);
}

void TestTimeEstimate::startsAnewWhenTheDirectionChanges()
{
    TimeEstimate estimate;
    QCOMPARE(estimate.update(load(10), Direction::ToEmpty, 0s), 300min);
    const Pack charging = pack(20'000'000, 50'000'000, 30'000'000, ChargeStatus::Charging);
    QCOMPARE(estimate.update({ charging }, Direction::ToFull, 5s), 60min);
    QCOMPARE(estimate.update(load(25), Direction::ToEmpty, 10s), 120min);
}

void TestTimeEstimate::keepsTheSmoothedLoadThroughAMissingSample()
{
    TimeEstimate estimate;
    QCOMPARE(estimate.update(load(10), Direction::ToEmpty, 0s), 300min);
    QVERIFY(!estimate.update({ pack(50'000'000, 50'000'000, {}) }, Direction::ToEmpty, 5s));
    const auto after = estimate.update(load(30), Direction::ToEmpty, 10s);
    QVERIFY(after && *after > 290min);
}

void TestTimeEstimate::isAbsentOutsideOfWhatABatteryCanDo_data()
{
    QTest::addColumn<qlonglong>("now");
    QTest::addColumn<qlonglong>("full");
    QTest::addColumn<qlonglong>("rate");
    QTest::addColumn<int>("expected");
    QTest::newRow("a rate of zero") << 25'000'000LL << 50'000'000LL << 0LL << -1;
    QTest::newRow("below 0.1 W") << 1'000'000LL << 50'000'000LL << 99'999LL << -1;
    QTest::newRow("0.1 W") << 1'000'000LL << 50'000'000LL << 100'000LL << 600;
    QTest::newRow("300 W") << 200'000'000LL << 200'000'000LL << 300'000'000LL << 40;
    QTest::newRow("above 300 W") << 200'000'000LL << 200'000'000LL << 300'000'001LL << -1;
    QTest::newRow("48 hours") << 48'000'000LL << 50'000'000LL << 1'000'000LL << 2880;
    QTest::newRow("above 48 hours") << 48'100'000LL << 50'000'000LL << 1'000'000LL << -1;
    QTest::newRow("twice full an hour") << 25'000'000LL << 50'000'000LL << 100'000'000LL << 15;
    QTest::newRow("more") << 25'000'000LL << 50'000'000LL << 100'000'001LL << -1;
}

void TestTimeEstimate::isAbsentOutsideOfWhatABatteryCanDo()
{
    QFETCH(qlonglong, now);
    QFETCH(qlonglong, full);
    QFETCH(qlonglong, rate);
    QTEST(static_cast<int>(minutes(once({ pack(now, full, rate) }, Direction::ToEmpty))),
          "expected");
}

void TestTimeEstimate::prefersTheGaugesOwnTime()
{
    Pack gauge = pack(25'000'000, 50'000'000, 10'000'000);
    gauge.timeToEmpty = 7200;
    QCOMPARE(once({ gauge }, Direction::ToEmpty), 120min);
    Pack charging = pack(25'000'000, 50'000'000, 10'000'000, ChargeStatus::Charging);
    charging.timeToFull = 3600;
    QCOMPARE(once({ charging }, Direction::ToFull), 60min);
}

void TestTimeEstimate::livesOnPercentAndSecondsAlone()
{
    Pack gauge;
    gauge.status = ChargeStatus::Discharging;
    gauge.percent = 40;
    QVERIFY(!once({ gauge }, Direction::ToEmpty));
    gauge.timeToEmpty = 5400;
    QCOMPARE(once({ gauge }, Direction::ToEmpty), 90min);
}

void TestTimeEstimate::sumsPacksAndTheirRates()
{
    const Pack busy = pack(30'000'000, 72'000'000, 15'000'000);
    const Pack waiting = pack(24'000'000, 24'000'000, 0, ChargeStatus::Unknown);
    QCOMPARE(once({ busy, waiting }, Direction::ToEmpty), 216min);
}

void TestTimeEstimate::needsTheRateOfThePackAtWork()
{
    const Pack busy = pack(30'000'000, 72'000'000, {});
    const Pack waiting = pack(24'000'000, 24'000'000, {}, ChargeStatus::NotCharging);
    QVERIFY(!once({ busy, waiting }, Direction::ToEmpty));
    const Pack known = pack(30'000'000, 72'000'000, 15'000'000);
    QCOMPARE(once({ known, waiting }, Direction::ToEmpty), 216min);
}

void TestTimeEstimate::ignoresTheRateOfAPackThatIsNotCharged()
{
    const Pack charging = pack(20'000'000, 50'000'000, 30'000'000, ChargeStatus::Charging);
    const Pack full = pack(24'000'000, 24'000'000, 9'000'000, ChargeStatus::Full);
    QCOMPARE(once({ charging, full }, Direction::ToFull), 60min);
}

void TestTimeEstimate::isAbsentWithoutADirection()
{
    TimeEstimate estimate;
    QVERIFY(!estimate.update(load(10), std::nullopt, 0s));
}

FERRIN_TEST(QCoreApplication, TestTimeEstimate)
#include "test_timeestimate.moc"
