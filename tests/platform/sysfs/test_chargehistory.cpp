// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/chargehistory.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace std::chrono_literals;

class ChargeHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheLastChargeThroughAZero();
    void believesAZeroAfterHalfAMinuteWithoutABreak();
    void startsAnewAfterASampleInBetween();
    void believesAZeroThatWasComing();
    void believesAFirstZeroThatTheVoltageConfirms();
    void doubtsAFirstZeroWithoutAWitness();
    void believesAnEmptyPackBesideAFullOne();
    void keepsEachPacksChargeApart();
    void forgetsAPackThatWasTakenOut();
    void keepsTheLastChargeForHalfAMinuteWhereNoneCanBeRead();
    void hasNoChargeBeforeTheFirstThatCouldBeRead();
};

namespace {

struct Gauges
{
    ChargeHistory history;
    ChargeHistory::Time moment;

    // Takes one sample of packs named a, b, c... and returns the charges after settling.
    std::vector<std::optional<int>> sample(const std::vector<std::optional<int>> &percents,
                                           std::chrono::seconds later = 5s, bool drained = false)
    {
        moment += later;
        std::vector<BatterySupply> batteries(percents.size());
        std::vector<Pack> packs(percents.size());
        for (std::size_t index = 0; index < percents.size(); ++index) {
            batteries[index].name = std::string(1, static_cast<char>('a' + index));
            packs[index].percent = percents[index];
            packs[index].now = 1;
            packs[index].drained = drained;
        }
        history.settle(batteries, packs, moment);
        std::vector<std::optional<int>> settled;
        for (const Pack &pack : packs)
            settled.push_back(pack.percent);
        return settled;
    }
};
using Percents = std::vector<std::optional<int>>;

} // namespace

void ChargeHistoryTest::keepsTheLastChargeThroughAZero()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 62 }), Percents { 62 });
    QCOMPARE(gauges.sample({ 0 }), Percents { 62 });
    QCOMPARE(gauges.sample({ 61 }), Percents { 61 });
}

void ChargeHistoryTest::believesAZeroAfterHalfAMinuteWithoutABreak()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 62 }), Percents { 62 });
    QCOMPARE(gauges.sample({ 0 }), Percents { 62 });
    QCOMPARE(gauges.sample({ 0 }, 29s), Percents { 62 });
    QCOMPARE(gauges.sample({ 0 }, 1s), Percents { 0 });
    QCOMPARE(gauges.sample({ 0 }, 1s), Percents { 0 });
}

void ChargeHistoryTest::startsAnewAfterASampleInBetween()
{
    Gauges gauges;
    for (int round = 0; round < 20; ++round) {
        QCOMPARE(gauges.sample({ 62 }), Percents { 62 });
        QCOMPARE(gauges.sample({ 0 }), Percents { 62 });
        QCOMPARE(gauges.sample({ 0 }, 20s), Percents { 62 });
    }
}

void ChargeHistoryTest::believesAZeroThatWasComing()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 5 }), Percents { 5 });
    QCOMPARE(gauges.sample({ 0 }), Percents { 0 });
}

void ChargeHistoryTest::believesAFirstZeroThatTheVoltageConfirms()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 0 }, 5s, true), Percents { 0 });
}

void ChargeHistoryTest::doubtsAFirstZeroWithoutAWitness()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 0 }), Percents { std::nullopt });
    QCOMPARE(gauges.sample({ 0 }, 30s), Percents { 0 });
}

void ChargeHistoryTest::believesAnEmptyPackBesideAFullOne()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 0, 80 }), (Percents { 0, 80 }));
}

void ChargeHistoryTest::keepsEachPacksChargeApart()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 40, 80 }), (Percents { 40, 80 }));
    QCOMPARE(gauges.sample({ 0, 79 }), (Percents { 40, 79 }));
    QCOMPARE(gauges.sample({ 39, 0 }), (Percents { 39, 79 }));
}

void ChargeHistoryTest::forgetsAPackThatWasTakenOut()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 40, 80 }), (Percents { 40, 80 }));
    QCOMPARE(gauges.sample({ 40 }), Percents { 40 });
    QCOMPARE(gauges.sample({ 40, 0 }), (Percents { 40, 0 }));
}

void ChargeHistoryTest::keepsTheLastChargeForHalfAMinuteWhereNoneCanBeRead()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ 62 }), Percents { 62 });
    QCOMPARE(gauges.sample({ std::nullopt }), Percents { 62 });
    QCOMPARE(gauges.sample({ 0 }), Percents { 62 });
    QCOMPARE(gauges.sample({ std::nullopt }, 24s), Percents { 62 });
    QCOMPARE(gauges.sample({ std::nullopt }, 1s), Percents { std::nullopt });
    QCOMPARE(gauges.sample({ std::nullopt }), Percents { std::nullopt });
    QCOMPARE(gauges.sample({ 61 }), Percents { 61 });
    QCOMPARE(gauges.sample({ std::nullopt }), Percents { 61 });
}

void ChargeHistoryTest::hasNoChargeBeforeTheFirstThatCouldBeRead()
{
    Gauges gauges;
    QCOMPARE(gauges.sample({ std::nullopt }), Percents { std::nullopt });
    QCOMPARE(gauges.sample({ 0 }, 60s, true), Percents { 0 });
}

FERRIN_TEST(QCoreApplication, ChargeHistoryTest)
#include "test_chargehistory.moc"
