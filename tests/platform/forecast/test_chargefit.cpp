// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/chargefit.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>

using namespace ferrin;

namespace {

// One whole charge of a battery, percent by percent, up to a charge.
ChargeFit charged(const ChargeFit::Charge &truth, double from, double to,
                  std::optional<ChargeFit::Charge> known = {})
{
    ChargeFit fit(known);
    for (int step = 0; from + step < to; ++step) {
        const double percent = from + step;
        fit.add(percent, percent + 1, truth.curve.between(percent, percent + 1, truth.rate));
    }
    return fit;
}

double error(const ChargeFit &fit, const ChargeFit::Charge &truth, double from)
{
    const ChargeFit::Charge found = fit.result().value();
    const Hours shown = found.curve.between(from, 99.5, found.rate);
    return std::abs(std::log(shown / truth.curve.between(from, 99.5, truth.rate)));
}

} // namespace

class ChargeFitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheTimeOfBothPhases()
    {
        // 25 points at 50 an hour, then 27 * ln(27 / 2) fading ones.
        const ChargeCurve curve { 75, 2 };
        QVERIFY(std::abs(curve.between(50, 75, 50).count() - 0.5) < 1e-9);
        QVERIFY(std::abs(curve.between(75, 100, 50).count() - 27 * std::log(13.5) / 50) < 1e-9);
        QVERIFY(curve.share(60) == 1);
        QVERIFY(std::abs(curve.share(100) - 2.0 / 27) < 1e-9);
    }

    void learnsFromStepsOfAnySize_data()
    {
        QTest::addColumn<double>("step");
        QTest::addRow("parts of a percent") << 0.5;
        QTest::addRow("some percents and a part") << 2.5;
    }

    void learnsFromStepsOfAnySize()
    {
        QFETCH(double, step);
        const ChargeFit::Charge truth { { 70, 2 }, 50 };
        ChargeFit fit({});
        for (int count = 0; 30 + count * step < 100; ++count) {
            const double percent = 30 + count * step;
            fit.add(percent, percent + step,
                    truth.curve.between(percent, percent + step, truth.rate));
        }
        QVERIFY(fit.isTelling());
        QVERIFY2(error(fit, truth, 40) < 0.05, qPrintable(QString::number(error(fit, truth, 40))));
    }

    void knowsNothingBeforeAnythingWasSeen() { QVERIFY(!ChargeFit({}).result()); }

    void followsTheRateThatTheMachineTellsAtFirst()
    {
        ChargeFit fit({});
        fit.report(20, 50);
        QVERIFY(std::abs(fit.result()->rate - 50) < 5);
    }

    void needsTheMachinesWordNoLongerOnceTwoPercentAreMeasured()
    {
        ChargeFit fit({});
        fit.add(20, 21, Hours(0.02));
        const double measured = fit.result()->rate;
        fit.report(21, 90);
        const double heard = fit.result()->rate;
        QVERIFY(heard > measured + 1);
        fit.add(21, 22, Hours(0.02));
        const double before = fit.result()->rate;
        fit.report(22, 30);
        QCOMPARE(fit.result()->rate, before);
    }

    void findsTheKneeOfAFirstCharge_data()
    {
        QTest::addColumn<double>("knee");
        QTest::addColumn<double>("rate");
        for (const double knee : { 50.0, 60.0, 70.0, 80.0, 85.0 }) {
            // A weak adapter does not bring a battery to an early knee.
            for (const double rate : { 30.0, 55.0, 90.0 }) {
                if (knee >= 60 || rate > 55)
                    QTest::addRow("%g at %g", knee, rate) << knee << rate;
            }
        }
    }

    // Once the fading shows: ten points above the knee.
    void findsTheKneeOfAFirstCharge()
    {
        QFETCH(double, knee);
        QFETCH(double, rate);
        const ChargeFit::Charge truth { { knee, 2 }, rate };
        const double now = knee + 10;
        QVERIFY2(error(charged(truth, 20, now), truth, now) < 0.2,
                 qPrintable(QString::number(error(charged(truth, 20, now), truth, now))));
    }

    void isRightFromTheStartOfASecondCharge()
    {
        for (const double knee : { 55.0, 70.0, 85.0 }) {
            const ChargeFit::Charge truth { { knee, 2 }, 60 };
            const ChargeFit first = charged(truth, 20, 100);
            QVERIFY(first.isTelling());
            QVERIFY(error(charged(truth, 20, 22, first.result()), truth, 22) < 0.05);
        }
    }

    void isNotDisturbedByAPauseInBetween()
    {
        const ChargeFit::Charge truth { { 75, 2 }, 55 };
        ChargeFit fit({});
        for (int percent = 20; percent < 85; ++percent) {
            const Hours span = truth.curve.between(percent, percent + 1, truth.rate);
            fit.add(percent, percent + 1, percent == 50 ? span * 8 : span);
        }
        QVERIFY(error(fit, truth, 85) < 0.15);
    }

    void doesNotRememberAChargeThatShowedLittle()
    {
        const ChargeFit::Charge truth { { 75, 2 }, 55 };
        QVERIFY(!charged(truth, 20, 90).isTelling());
        QVERIFY(!charged(truth, 90, 100).isTelling());
    }
};

FERRIN_TEST(QCoreApplication, ChargeFitTest)
#include "test_chargefit.moc"
