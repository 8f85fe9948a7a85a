// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/loadmean.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>

using namespace ferrin;
using namespace std::chrono_literals;

namespace {

bool isAbout(double found, double wanted, double share = 0.001)
{
    return std::abs(found - wanted) <= wanted * share;
}

} // namespace

class LoadMeanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsNothingBeforeAnythingWasMeasured() { QVERIFY(!LoadMean().value()); }

    void countsAnExpectationAsTenMinutes()
    {
        LoadMean mean;
        mean.expect(8);
        QCOMPARE(mean.value(), 8.0);
        QVERIFY(isAbout(mean.weight().count(), Hours(10min).count()));
        mean.add(20, 10min);
        QVERIFY(*mean.value() > 13 && *mean.value() < 15);
    }

    void restsOnThreeQuartersOfAnHour()
    {
        LoadMean mean;
        mean.add(8, 10h);
        QVERIFY(isAbout(mean.weight().count(), 0.75));
        QVERIFY(isAbout(*mean.value(), 8));
    }

    void dependsNotOnHowOftenItIsTold()
    {
        LoadMean once;
        LoadMean often;
        once.add(8, 1h);
        once.add(10, 10min);
        for (int minute = 0; minute < 60; ++minute)
            often.add(8, 1min);
        for (int minute = 0; minute < 10; ++minute)
            often.add(10, 1min);
        QVERIFY(isAbout(*once.value(), *often.value()));
        QVERIFY(isAbout(once.weight().count(), often.weight().count()));
    }

    void doubtsWhatWasMeasuredDownToTenMinutes()
    {
        LoadMean mean;
        mean.add(8, 10h);
        mean.doubt();
        QVERIFY(isAbout(*mean.value(), 8));
        QVERIFY(isAbout(mean.weight().count(), Hours(10min).count()));
    }

    void doubtsNoLessThanIsThere()
    {
        LoadMean mean;
        mean.doubt();
        QVERIFY(!mean.value());
        mean.add(8, 5min);
        const Hours before = mean.weight();
        mean.doubt();
        QVERIFY(isAbout(mean.weight().count(), before.count()));
    }

    void startsAgainFromALoadThatStaysAnother()
    {
        LoadMean mean;
        mean.add(8, 1h);
        for (int minute = 0; minute < 3; ++minute)
            mean.add(20, 1min);
        QCOMPARE(mean.restarts(), 0);
        for (int minute = 0; minute < 8; ++minute)
            mean.add(20, 1min);
        QCOMPARE(mean.restarts(), 1);
        QVERIFY(isAbout(*mean.value(), 20, 0.05));
    }

    void doesNotStartAgainForAShortLoad()
    {
        LoadMean mean;
        mean.add(8, 1h);
        for (int time = 0; time < 20; ++time) {
            mean.add(30, 1min);
            mean.add(8, 10min);
        }
        QCOMPARE(mean.restarts(), 0);
    }

    void isNotForgottenForALoadOfNothing()
    {
        LoadMean mean;
        mean.expect(8);
        mean.add(0, 5min);
        QCOMPARE(mean.restarts(), 0);
        QVERIFY(mean.value());
    }

    void tellsTheMeanWithWhatIsNotMeasuredYet()
    {
        LoadMean mean;
        mean.expect(6);
        // 1 Wh in ten minutes, then nothing in the next ten.
        QVERIFY(isAbout(mean.valueWith(0, 10min), 3));
        QVERIFY(isAbout(mean.valueWith(2, 10min), 9));
    }
};

FERRIN_TEST(QCoreApplication, LoadMeanTest)
#include "test_loadmean.moc"
