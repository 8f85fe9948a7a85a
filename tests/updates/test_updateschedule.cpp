// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/testmain.h"
#include "updates/updateschedule.h"

#include <QTest>
#include <QTimeZone>

using namespace ferrin;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class UpdateScheduleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isDueADayAfterTheLastCheck();
    void isDueWhenThereWasNone();
    void isDueWhenTheLastIsYetToCome();
    void neverWaitsLessThanAMinute();
    void neverWaitsMoreThanAnHour();
    void waitsUntilItIsDue();

private:
    const QDateTime m_now { QDate(2026, 5, 1), QTime(12, 0), QTimeZone::utc() };
};

void UpdateScheduleTest::isDueADayAfterTheLastCheck()
{
    QVERIFY(updateschedule::isDue(m_now.addDays(-1), m_now));
    QVERIFY(!updateschedule::isDue(m_now.addDays(-1).addMSecs(1), m_now));
    QVERIFY(!updateschedule::isDue(m_now, m_now));
}

void UpdateScheduleTest::isDueWhenThereWasNone()
{
    QVERIFY(updateschedule::isDue(std::nullopt, m_now));
}

void UpdateScheduleTest::isDueWhenTheLastIsYetToCome()
{
    QVERIFY(updateschedule::isDue(m_now.addYears(30), m_now));
}

void UpdateScheduleTest::neverWaitsLessThanAMinute()
{
    QCOMPARE(updateschedule::untilNextLook(std::nullopt, m_now), 61s);
    QCOMPARE(updateschedule::untilNextLook(m_now.addYears(-1), m_now), 61s);
    QCOMPARE(updateschedule::untilNextLook(m_now.addDays(-1).addSecs(59), m_now), 61s);
}

void UpdateScheduleTest::neverWaitsMoreThanAnHour()
{
    QCOMPARE(updateschedule::untilNextLook(m_now, m_now), 1h);
}

void UpdateScheduleTest::waitsUntilItIsDue()
{
    QCOMPARE(updateschedule::untilNextLook(m_now.addDays(-1).addSecs(600), m_now), 10min);
}

FERRIN_TEST(QCoreApplication, UpdateScheduleTest)
#include "test_updateschedule.moc"
