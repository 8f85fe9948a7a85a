// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterytime.h"
#include "tests/support/lastwords.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace ferrin;
using namespace Qt::StringLiterals;
using Limits = std::numeric_limits<float>;

static_assert(std::is_aggregate_v<BatteryTime>);

class TestBatteryTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isUnknownAtFirst();
    void staysUnknownWithoutHours();
    void truncatesTowardZero_data();
    void truncatesTowardZero();
    void stopsTheProcessOverANumberThatIsNoTime_data();
    void stopsTheProcessOverANumberThatIsNoTime();
};

void TestBatteryTime::isUnknownAtFirst()
{
    QCOMPARE(BatteryTime().hours, std::nullopt);
    QCOMPARE(BatteryTime().minutes, std::nullopt);
}

void TestBatteryTime::staysUnknownWithoutHours()
{
    QVERIFY(BatteryTime::fractionalHours(std::nullopt) == BatteryTime());
    QVERIFY(BatteryTime::fractionalHours(0.0F) != BatteryTime());
}

void TestBatteryTime::truncatesTowardZero_data()
{
    QTest::addColumn<float>("fraction");
    QTest::addColumn<qint64>("hours");
    QTest::addColumn<qint64>("minutes");
    const auto row = [](const char *name, float fraction, qint64 hours, qint64 minutes) {
        QTest::newRow(name) << fraction << hours << minutes;
    };
    row("150.6 minutes", 2.51F, 2, 30);
    row("whole hours", 30.0F, 30, 0);
    row("nothing", 0.0F, 0, 0);
    row("under a minute", 0.016F, 0, 0);
    row("just under an hour", 0.9999F, 0, 59);
    row("negative", -2.51F, -2, -30);
    // In double precision the minutes would be 16.
    row("in single precision", 17.0F / 60.0F, 0, 17);
    row("greatest of which 60 still fit", 0x1.11111p57F, 153722858118316032, 0);
}

void TestBatteryTime::truncatesTowardZero()
{
    QFETCH(const float, fraction);
    const BatteryTime time = BatteryTime::fractionalHours(fraction);
    QTEST(time.hours.value(), "hours");
    QTEST(time.minutes.value(), "minutes");
}

void TestBatteryTime::stopsTheProcessOverANumberThatIsNoTime_data()
{
    QTest::addColumn<float>("fraction");
    QTest::addColumn<QString>("words");
    QTest::newRow("infinity") << Limits::infinity() << u"Not a 64-bit integer: inf"_s;
    QTest::newRow("not a number") << Limits::quiet_NaN() << u"Not a 64-bit integer: nan"_s;
    QTest::newRow("minutes that do not fit") << 1.6e17F << u"Not a 64-bit integer: 9.6e+18"_s;
    QTest::newRow("minutes below 64 bits") << -1.6e17F << u"Not a 64-bit integer: -9.6e+18"_s;
}

void TestBatteryTime::stopsTheProcessOverANumberThatIsNoTime()
{
    QFETCH(const float, fraction);
    const auto words
        = test::lastWords([fraction] { std::ignore = BatteryTime::fractionalHours(fraction); });
    QTEST(words.value_or(QString()), "words");
}

FERRIN_TEST(QCoreApplication, TestBatteryTime)
#include "test_batterytime.moc"
