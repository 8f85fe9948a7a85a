// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/settlingperiod.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace std::chrono_literals;

class SettlingPeriodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void doesNotRunBeforeAnythingHappened();
    void runsForTenSecondsAndNotLonger();
    void beginsAnewWithEachEvent();
    void knowsWhatTheLastEventSaidOfTheAdapter();
    void keepsTheAdapterWhenTheMachineWakesWithin();
    void forgetsTheAdapterWhenItIsOver();

private:
    std::chrono::steady_clock::time_point m_time;
    SettlingPeriod m_period { [this] { return m_time; } };
};

void SettlingPeriodTest::init()
{
    m_period = SettlingPeriod([this] { return m_time; });
}

void SettlingPeriodTest::doesNotRunBeforeAnythingHappened()
{
    QVERIFY(!m_period.isRunning());
    QCOMPARE(m_period.externalPower(), std::nullopt);
}

void SettlingPeriodTest::runsForTenSecondsAndNotLonger()
{
    m_period.begin(true);
    QVERIFY(m_period.isRunning());
    m_time += 9999ms;
    QVERIFY(m_period.isRunning());
    m_time += 1ms;
    QVERIFY(!m_period.isRunning());
}

void SettlingPeriodTest::beginsAnewWithEachEvent()
{
    m_period.begin(true);
    m_time += 8s;
    m_period.begin(false);
    m_time += 8s;
    QVERIFY(m_period.isRunning());
    m_time += 2s;
    QVERIFY(!m_period.isRunning());
}

void SettlingPeriodTest::knowsWhatTheLastEventSaidOfTheAdapter()
{
    m_period.begin(true);
    QCOMPARE(m_period.externalPower(), std::optional(true));
    m_period.begin(false);
    QCOMPARE(m_period.externalPower(), std::optional(false));
}

void SettlingPeriodTest::keepsTheAdapterWhenTheMachineWakesWithin()
{
    m_period.begin(true);
    m_time += 1s;
    m_period.begin(std::nullopt);
    QCOMPARE(m_period.externalPower(), std::optional(true));
}

void SettlingPeriodTest::forgetsTheAdapterWhenItIsOver()
{
    m_period.begin(true);
    m_time += 10s;
    QCOMPARE(m_period.externalPower(), std::nullopt);
    m_period.begin(std::nullopt);
    QVERIFY(m_period.isRunning());
    QCOMPARE(m_period.externalPower(), std::nullopt);
}

FERRIN_TEST(QCoreApplication, SettlingPeriodTest)
#include "test_settlingperiod.moc"
