// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/drawforecast.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>

using namespace ferrin;
using namespace std::chrono_literals;

namespace {

/// A battery of 50 Wh that is drained, looked at every five seconds.
struct Battery
{
    explicit Battery(std::optional<double> usual = {})
        : forecast(usual)
    {
    }

    // The hours shown in the end.
    double drain(double watts, std::chrono::seconds span, double step = 0)
    {
        double shown = 0;
        for (auto passed = 0s; passed < span; passed += 5s) {
            awake += 5s;
            now -= watts * Hours(5s).count();
            shown = look(step > 0 ? std::floor(now / step) * step : now, watts);
        }
        return shown;
    }

    double look(double said, double watts)
    {
        const PackMoment pack { .key = "a",
                                .flow = PackMoment::Flow::Discharging,
                                .now = said,
                                .full = 50,
                                .rate = watts,
                                .limit = {} };
        return forecast.update({ pack }, awake).value().count();
    }

    DrawForecast forecast;
    Hours awake = 1h;
    double now = 40;
};

bool isAbout(double found, double wanted, double share)
{
    return std::abs(found - wanted) <= wanted * share;
}

} // namespace

class DrawForecastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expectsTheUsualDrawToReturn()
    {
        Battery battery(8);
        const double shown = battery.drain(16, 90min);
        // Two fifths of the way back, of which at most half an e-fold counts.
        QVERIFY(isAbout(shown, battery.now / (16 * std::exp(-0.2)), 0.06));
        Battery lazy(16);
        const double longer = lazy.drain(8, 90min);
        QVERIFY(isAbout(longer, lazy.now / (8 * std::exp(0.2)), 0.06));
    }

    void takesItsFirstLookForThreeMinutes()
    {
        Battery battery(8);
        // Ten minutes of 8 W and three of 24, then a part of the way back.
        const double shown = battery.drain(24, 5s);
        QVERIFY2(shown > 40.0 / 12 && shown < 40.0 / 9, qPrintable(QString::number(shown)));
    }

    void beginsAtAStepWithWhatTheGaugeSays()
    {
        Battery battery;
        battery.now = 3;
        // Just below 2 Wh, which a gauge in halves tells as 1.5.
        const double shown = battery.drain(5, 12min + 10s, 0.5);
        QVERIFY2(isAbout(shown, 1.5 / 5, 0.1), qPrintable(QString::number(shown)));
    }

    void runsDownBetweenTheSteps()
    {
        Battery battery;
        battery.now = 3;
        const double atStep = battery.drain(5, 12min + 10s, 0.5);
        const double later = battery.drain(5, 4min, 0.5);
        QVERIFY2(isAbout(atStep - later, Hours(4min).count(), 0.2),
                 qPrintable(QString::number(atStep - later)));
    }

    void tellsWhatWasDrawn()
    {
        Battery battery;
        battery.drain(6, 20min, 0.5);
        while (!battery.forecast.drawn())
            battery.drain(6, 5s, 0.5);
        QVERIFY(isAbout(battery.forecast.drawn()->energy, 0.5, 0.001));
        QVERIFY(isAbout(battery.forecast.drawn()->span.count(), Hours(5min).count(), 0.02));
        battery.drain(6, 5s, 0.5);
        QVERIFY(!battery.forecast.drawn());
    }

    void believesNoImpossibleLoad_data()
    {
        QTest::addColumn<double>("watts");
        QTest::addRow("less than a gauge tells") << 0.05;
        QTest::addRow("empty in less than half an hour") << 120.0;
        QTest::addRow("no notebook's") << 400.0;
    }

    void believesNoImpossibleLoad()
    {
        QFETCH(double, watts);
        DrawForecast forecast({});
        const PackMoment pack { .key = "a",
                                .flow = PackMoment::Flow::Discharging,
                                .now = 40,
                                .full = 50,
                                .rate = watts,
                                .limit = {} };
        QVERIFY(!forecast.update({ pack }, 1h));
    }

    void countsNoOtherPacksGainAsLoad()
    {
        DrawForecast forecast({});
        const PackMoment drained { .key = "a",
                                   .flow = PackMoment::Flow::Discharging,
                                   .now = 20,
                                   .full = 25,
                                   .rate = 10,
                                   .limit = {} };
        const PackMoment filled { .key = "b",
                                  .flow = PackMoment::Flow::Charging,
                                  .now = 20,
                                  .full = 25,
                                  .rate = 10,
                                  .limit = {} };
        QVERIFY(isAbout(forecast.update({ drained, filled }, 1h).value().count(), 4, 0.01));
    }
};

FERRIN_TEST(QCoreApplication, DrawForecastTest)
#include "test_drawforecast.moc"
