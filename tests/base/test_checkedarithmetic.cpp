// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/checkedarithmetic.h"
#include "tests/support/lastwords.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <limits>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::lastWords;

namespace {

constexpr qint64 greatest = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

} // namespace

class CheckedArithmeticTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void calculates();
    void stopsTheProcessWhenASumDoesNotFit();
    void stopsTheProcessWhenADifferenceDoesNotFit();
    void stopsTheProcessWhenAProductDoesNotFit();
    void truncatesTowardZero();
    void stopsTheProcessWhenAFloatIsNoInteger_data();
    void stopsTheProcessWhenAFloatIsNoInteger();
    void knowsWhenNothingStopped();
};

void CheckedArithmeticTest::calculates()
{
    QCOMPARE(checkedAdd(greatest - 1, 1), greatest);
    QCOMPARE(checkedSubtract(least + 1, 1), least);
    QCOMPARE(checkedMultiply(-50, 6000), -300000);
}

void CheckedArithmeticTest::stopsTheProcessWhenASumDoesNotFit()
{
    QCOMPARE(lastWords([] { std::ignore = checkedAdd(greatest, 1); }),
             u"Integer overflow: 9223372036854775807 + 1"_s);
}

void CheckedArithmeticTest::stopsTheProcessWhenADifferenceDoesNotFit()
{
    QCOMPARE(lastWords([] { std::ignore = checkedSubtract(least, 1); }),
             u"Integer overflow: -9223372036854775808 - 1"_s);
}

void CheckedArithmeticTest::stopsTheProcessWhenAProductDoesNotFit()
{
    QCOMPARE(lastWords([] { std::ignore = checkedMultiply(greatest, 2); }),
             u"Integer overflow: 9223372036854775807 * 2"_s);
}

void CheckedArithmeticTest::truncatesTowardZero()
{
    QCOMPARE(checkedInteger(150.6F), 150);
    QCOMPARE(checkedInteger(-150.6F), -150);
    QCOMPARE(checkedInteger(-0x1p63F), least);
    QCOMPARE(checkedInteger(0x1.fffffep62F), 9223371487098961920);
}

void CheckedArithmeticTest::stopsTheProcessWhenAFloatIsNoInteger_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("words");
    using Limits = std::numeric_limits<float>;
    QTest::newRow("infinity") << Limits::infinity() << u"Not a 64-bit integer: inf"_s;
    QTest::newRow("less than all") << -Limits::infinity() << u"Not a 64-bit integer: -inf"_s;
    QTest::newRow("not a number") << Limits::quiet_NaN() << u"Not a 64-bit integer: nan"_s;
    QTest::newRow("too great") << 0x1p63F << u"Not a 64-bit integer: 9.22337e+18"_s;
    QTest::newRow("too small") << -0x1.000002p63F << u"Not a 64-bit integer: -9.22337e+18"_s;
}

void CheckedArithmeticTest::stopsTheProcessWhenAFloatIsNoInteger()
{
    QFETCH(const float, value);
    QTEST(lastWords([value] { std::ignore = checkedInteger(value); }).value_or(QString()), "words");
}

void CheckedArithmeticTest::knowsWhenNothingStopped()
{
    QCOMPARE(lastWords([] { std::ignore = checkedAdd(1, 1); }), std::nullopt);
}

FERRIN_TEST(QCoreApplication, CheckedArithmeticTest)
#include "test_checkedarithmetic.moc"
