// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/chargeforecast.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>

using namespace ferrin;
using namespace std::chrono_literals;

namespace {

PackMoment charging(double now, std::optional<double> watts = {})
{
    return { .key = "a",
             .flow = PackMoment::Flow::Charging,
             .now = now,
             .full = 50,
             .rate = watts,
             .limit = {} };
}

bool isAbout(double found, double wanted, double share)
{
    return std::abs(found - wanted) <= wanted * share;
}

} // namespace

class ChargeForecastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresTheRateWhereNoneIsTold()
    {
        ChargeForecast forecast({});
        Hours awake = 1h;
        // 20 W from 10 Wh on, by a gauge in whole percents.
        for (double now = 10; now < 20; now += 20 * Hours(5s).count()) {
            awake += 5s;
            forecast.watch(charging(std::floor(now * 2) / 2), awake);
        }
        const std::optional<double> power = forecast.power(charging(20));
        QVERIFY(power);
        QVERIFY2(isAbout(*power, 20, 0.05), qPrintable(QString::number(*power)));
    }

    void takesTheRateThatIsTold()
    {
        ChargeForecast forecast({});
        forecast.watch(charging(10, 20), 1h);
        const std::optional<double> power = forecast.power(charging(10));
        QVERIFY(power);
        QVERIFY(isAbout(*power, 20, 0.05));
    }

    void knowsNothingOfARateThatIsNone()
    {
        ChargeForecast forecast({});
        forecast.watch(charging(10, 0.05), 1h);
        QVERIFY(!forecast.power(charging(10)));
        QVERIFY(!forecast.timeLeft(charging(10), 1h, {}));
    }

    void waitsAsLongAsAnotherPackTakes()
    {
        const ChargeForecast forecast({});
        PackMoment waiting = charging(10);
        waiting.flow = PackMoment::Flow::Resting;
        waiting.limit = 60;
        // From 20 to 60 percent of 50 Wh, at 20 W.
        const auto time = forecast.timeLeft(waiting, 1h, 20);
        QVERIFY(time);
        QVERIFY2(isAbout(time->count(), 1, 0.05), qPrintable(QString::number(time->count())));
    }

    void goesOnWithinAPercent()
    {
        ChargeForecast forecast({});
        Hours awake = 1h;
        double now = 10;
        for (; now < 19.6; now += 20 * Hours(5s).count()) {
            awake += 5s;
            forecast.watch(charging(std::floor(now * 2) / 2), awake);
        }
        const PackMoment still = charging(std::floor(now * 2) / 2);
        const double before = forecast.timeLeft(still, awake, {}).value().count();
        const double after = forecast.timeLeft(still, awake + Hours(30s), {}).value().count();
        QVERIFY2(isAbout(before - after, Hours(30s).count(), 0.2),
                 qPrintable(QString::number(before - after)));
    }
};

FERRIN_TEST(QCoreApplication, ChargeForecastTest)
#include "test_chargeforecast.moc"
