// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/gaugesteps.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace std::chrono_literals;

class GaugeStepsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresFromOneStepToTheNext()
    {
        GaugeSteps steps(GaugeSteps::Towards::Empty);
        QVERIFY(!steps.add(0.50, 0min));
        // Nobody knows how long it had been 50 % when it was first seen.
        QVERIFY(!steps.add(0.49, 1min));
        QVERIFY(!steps.add(0.49, 4min));
        const auto change = steps.add(0.48, 7min);
        QVERIFY(change);
        QVERIFY(qFuzzyCompare(change->amount, 0.01));
        QVERIFY(change->span == Hours(6min));
    }

    void carriesTheChargeOnBetweenSteps()
    {
        GaugeSteps steps(GaugeSteps::Towards::Empty);
        steps.add(0.50, 0min);
        steps.add(0.49, 10min);
        QVERIFY(qFuzzyCompare(steps.charge(13min, 0.1), 0.485));
        // Never further than the next step, which did not come.
        QVERIFY(qFuzzyCompare(steps.charge(5h, 0.1), 0.48));
    }

    void noticesAStepThatIsOverdue()
    {
        GaugeSteps steps(GaugeSteps::Towards::Empty);
        steps.add(0.50, 0min);
        steps.add(0.49, 10min);
        QVERIFY(!steps.overdue(14min, 0.1));
        QVERIFY(steps.overdue(30min, 0.1));
    }

    void measuresNothingByAGaugeThatLeaps()
    {
        GaugeSteps steps(GaugeSteps::Towards::Empty);
        steps.add(0.12, 0s);
        steps.add(0.11, 60s);
        QVERIFY(!steps.add(0.05, 61s));
        QVERIFY(qFuzzyCompare(steps.charge(61s, 0), 0.05));
    }

    void waitsOutNoise()
    {
        GaugeSteps steps(GaugeSteps::Towards::Empty);
        steps.add(0.50, 0min);
        steps.add(0.49, 5min);
        QVERIFY(!steps.add(0.50, 6min));
        QVERIFY(!steps.add(0.49, 7min));
        QVERIFY(qFuzzyCompare(steps.add(0.48, 11min)->span.count(), Hours(6min).count()));
    }

    void tellsAGaugeOfWholePercents()
    {
        GaugeSteps steps(GaugeSteps::Towards::Full);
        steps.add(0.50, 0min);
        QVERIFY(steps.countsPercents());
        steps.add(0.5037, 1min);
        QVERIFY(!steps.countsPercents());
    }
};

FERRIN_TEST(QCoreApplication, GaugeStepsTest)
#include "test_gaugesteps.moc"
