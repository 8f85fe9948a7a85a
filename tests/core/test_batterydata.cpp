// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterydata.h"
#include "tests/support/changesignals.h"
#include "tests/support/lastwords.h"
#include "tests/support/testmain.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace ferrin;
using namespace Qt::StringLiterals;

using Integer = std::optional<qint64>;
using Float = std::optional<float>;

namespace {

constexpr qint64 greatest = std::numeric_limits<qint64>::max();

/// Writes a different value each time, so that every write is a change.
void writeAll(BatteryData &data, qint64 step)
{
    data.setChargingStatus(step % 2 == 0 ? BatteryChargingStatus::charging
                                         : BatteryChargingStatus::discharging);
    data.setPowerSource(step % 2 == 0 ? PowerSource::external : PowerSource::battery);
    data.setHealth(step % 2 == 0 ? BatteryHealth::normal : BatteryHealth::service);
    data.setTimeRemaining({ step, 5 });
    data.setTimeRemainingQuality(step % 2 == 0 ? TimeQuality::real : TimeQuality::frozen);
    data.setCharge(step);
    data.setChargeLimit(step);
    data.setChargeCycles(step);
    data.setDesignCycles(step);
    data.setRawMaxCapacity(step);
    data.setMaxCapacity(step);
    data.setAdapterName(QString::number(step));
    data.setAdapterManufacturer(QString::number(step));
    data.setAdapterWatts(step);
    data.setAdapterVoltage(static_cast<float>(step));
    data.setAdapterCurrent(static_cast<float>(step));
}

} // namespace

class TestBatteryData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsNothingAtFirst();
    void hasASignalForEachValue();
    void tellsOfAChangeAndOfNothingElse_data();
    void tellsOfAChangeAndOfNothingElse();
    void evaluatesABindingAgainOnlyWhenAValueThatItReadChanges();
    void evaluatesABindingOverADerivedValueAgain();
    void judgesTheLifespan_data();
    void judgesTheLifespan();
    void writesTheMinutesWithTwoDigits_data();
    void writesTheMinutesWithTwoDigits();
    void estimatesTheTimeToFull_data();
    void estimatesTheTimeToFull();
    void estimatesTheTimeToEmpty_data();
    void estimatesTheTimeToEmpty();
    void keepsTheTimeThatStandsWithoutAnEstimate();
    void hasNoTimeToFullWhileNothingIsLeftToChargeWith();
    void stopsTheProcessWhenTheMissingChargeDoesNotFit();
};

void TestBatteryData::knowsNothingAtFirst()
{
    const BatteryData data;
    QCOMPARE(data.chargingStatus(), BatteryChargingStatus::unknown);
    QCOMPARE(data.powerSource(), PowerSource::unknown);
    QCOMPARE(data.health(), BatteryHealth::unknown);
    QVERIFY(data.timeRemaining() == BatteryTime());
    QCOMPARE(data.timeRemainingQuality(), TimeQuality::estimated);
    QCOMPARE(data.charge(), std::nullopt);
    QCOMPARE(data.chargeCycles(), std::nullopt);
    QCOMPARE(data.designCycles(), std::nullopt);
    QCOMPARE(data.rawMaxCapacity(), std::nullopt);
    QCOMPARE(data.maxCapacity(), std::nullopt);
    QCOMPARE(data.adapterName(), std::nullopt);
    QCOMPARE(data.adapterManufacturer(), std::nullopt);
    QCOMPARE(data.adapterWatts(), std::nullopt);
    QCOMPARE(data.adapterVoltage(), std::nullopt);
    QCOMPARE(data.adapterCurrent(), std::nullopt);
}

void TestBatteryData::hasASignalForEachValue()
{
    QStringList names;
    for (const QMetaMethod &change : test::changeSignalsOf<BatteryData>())
        names.append(QString::fromLatin1(change.name()));
    const QStringList expected {
        u"chargingStatusChanged"_s,
        u"powerSourceChanged"_s,
        u"healthChanged"_s,
        u"timeRemainingChanged"_s,
        u"timeRemainingQualityChanged"_s,
        u"chargeChanged"_s,
        u"chargeLimitChanged"_s,
        u"chargeCyclesChanged"_s,
        u"designCyclesChanged"_s,
        u"rawMaxCapacityChanged"_s,
        u"maxCapacityChanged"_s,
        u"adapterNameChanged"_s,
        u"adapterManufacturerChanged"_s,
        u"adapterWattsChanged"_s,
        u"adapterVoltageChanged"_s,
        u"adapterCurrentChanged"_s,
    };
    QCOMPARE(names, expected);
}

void TestBatteryData::tellsOfAChangeAndOfNothingElse_data()
{
    QTest::addColumn<QMetaMethod>("change");
    for (const QMetaMethod &change : test::changeSignalsOf<BatteryData>())
        QTest::newRow(change.name().constData()) << change;
}

void TestBatteryData::tellsOfAChangeAndOfNothingElse()
{
    QFETCH(const QMetaMethod, change);
    BatteryData data;
    QSignalSpy spy(&data, change);
    writeAll(data, 1);
    QCOMPARE(spy.size(), 1);
    writeAll(data, 1);
    QCOMPARE(spy.size(), 1);
    writeAll(data, 2);
    QCOMPARE(spy.size(), 2);
}

void TestBatteryData::evaluatesABindingAgainOnlyWhenAValueThatItReadChanges()
{
    BatteryData data;
    int evaluations = 0;
    QProperty<qint64> seen;
    seen.setBinding([&] {
        ++evaluations;
        return data.charge().value_or(-1);
    });
    QCOMPARE(seen.value(), -1);
    data.setCharge(40);
    QCOMPARE(seen.value(), 40);
    evaluations = 0;
    data.setCharge(40);
    data.setMaxCapacity(90);
    data.setTimeRemaining({ 1, 2 });
    QCOMPARE(evaluations, 0);
    data.setCharge(std::nullopt);
    QCOMPARE(seen.value(), -1);
    QCOMPARE(evaluations, 1);
}

void TestBatteryData::evaluatesABindingOverADerivedValueAgain()
{
    BatteryData data;
    QProperty<BatteryLifespan> lifespan;
    lifespan.setBinding([&] { return data.lifespan(); });
    QCOMPARE(lifespan.value(), BatteryLifespan::unknown);
    data.setDesignCycles(1000);
    data.setMaxCapacity(90);
    data.setChargeCycles(500);
    QCOMPARE(lifespan.value(), BatteryLifespan::good);
    data.setMaxCapacity(79);
    QCOMPARE(lifespan.value(), BatteryLifespan::reducedMaxCap);
}

void TestBatteryData::judgesTheLifespan_data()
{
    QTest::addColumn<Integer>("cycles");
    QTest::addColumn<Integer>("design");
    QTest::addColumn<Integer>("capacity");
    QTest::addColumn<BatteryLifespan>("lifespan");
    const auto row = [](const char *name, Integer cycles, Integer design, Integer capacity,
                        BatteryLifespan lifespan) {
        QTest::newRow(name) << cycles << design << capacity << lifespan;
    };
    row("few cycles, low capacity", 500, 1000, 79, BatteryLifespan::reducedMaxCap);
    row("few cycles, at the threshold", 500, 1000, 80, BatteryLifespan::good);
    row("one cycle left, low capacity", 999, 1000, 79, BatteryLifespan::reducedMaxCap);
    row("over its cycles, at the threshold", 1001, 1000, 80, BatteryLifespan::reducedCycles);
    row("over its cycles, low capacity", 1001, 1000, 79, BatteryLifespan::reducedMaxCapAndCycles);
    row("exactly its cycles, low capacity", 1000, 1000, 50, BatteryLifespan::good);
    row("exactly its cycles, high capacity", 1000, 1000, 100, BatteryLifespan::good);
    row("nothing is zero", 0, 0, 0, BatteryLifespan::good);
    row("no cycles", std::nullopt, 1000, 79, BatteryLifespan::unknown);
    row("no design cycles", 500, std::nullopt, 79, BatteryLifespan::unknown);
    row("no capacity", 500, 1000, std::nullopt, BatteryLifespan::unknown);
}

void TestBatteryData::judgesTheLifespan()
{
    QFETCH(const Integer, cycles);
    QFETCH(const Integer, design);
    QFETCH(const Integer, capacity);
    BatteryData data;
    data.setChargeCycles(cycles);
    data.setDesignCycles(design);
    data.setMaxCapacity(capacity);
    QTEST(data.lifespan(), "lifespan");
}

void TestBatteryData::writesTheMinutesWithTwoDigits_data()
{
    QTest::addColumn<Integer>("hours");
    QTest::addColumn<Integer>("minutes");
    QTest::addColumn<QString>("text");
    QTest::newRow("one digit") << Integer(1) << Integer(5) << u"05"_s;
    QTest::newRow("two digits") << Integer(0) << Integer(42) << u"42"_s;
    QTest::newRow("zero") << Integer(2) << Integer(0) << u"00"_s;
    QTest::newRow("negative") << Integer(-2) << Integer(-5) << u"-5"_s;
    QTest::newRow("no hours") << Integer() << Integer(5) << u"??"_s;
    QTest::newRow("no minutes") << Integer(1) << Integer() << u"??"_s;
    QTest::newRow("nothing") << Integer() << Integer() << u"??"_s;
}

void TestBatteryData::writesTheMinutesWithTwoDigits()
{
    QFETCH(const Integer, hours);
    QFETCH(const Integer, minutes);
    BatteryData data;
    data.setTimeRemaining({ hours, minutes });
    QTEST(data.timeRemainingMinutesText(), "text");
}

void TestBatteryData::estimatesTheTimeToFull_data()
{
    QTest::addColumn<qint64>("charge");
    QTest::addColumn<qint64>("capacity");
    QTest::addColumn<Float>("current");
    QTest::addColumn<BatteryTime>("time");
    const auto row = [](const char *name, qint64 charge, qint64 capacity, Float current,
                        const BatteryTime &time) {
        QTest::newRow(name) << charge << capacity << current << time;
    };
    row("full", 100, 6000, std::nullopt, { 0, 0 });
    row("full with a known current", 100, 6000, 3.0F, { 0, 0 });
    row("half, at the assumed current", 50, 6000, std::nullopt, { 2, 0 });
    row("half, at the adapter's current less half an ampere", 50, 6000, 3.5F, { 1, 0 });
    row("with minutes", 50, 6000, 3.0F, { 1, 12 });
    row("truncated", 43, 5103, 2.97F, { 1, 10 });
    row("over full", 110, 6000, std::nullopt, { 0, -24 });
    row("a weak adapter", 50, 6000, 0.25F, {});
    row("an empty battery", 0, 6000, std::nullopt, { 4, 0 });
    row("no capacity", 50, 0, std::nullopt, { 0, 0 });
    // In double precision the minutes would be 24 and 20.
    row("rounded down in single precision", 10, 4000, 2.0F, { 2, 23 });
    row("rounded up in single precision", 50, 4050, 2.0F, { 1, 21 });
}

void TestBatteryData::estimatesTheTimeToFull()
{
    QFETCH(const qint64, charge);
    QFETCH(const qint64, capacity);
    QFETCH(const Float, current);
    QFETCH(const BatteryTime, time);
    BatteryData data;
    data.setTimeRemaining({ 7, 7 });
    data.setCharge(charge);
    data.setRawMaxCapacity(capacity);
    data.setAdapterCurrent(current);
    QCOMPARE(data.estimatedTimeToFull().hours, time.hours);
    QCOMPARE(data.estimatedTimeToFull().minutes, time.minutes);
}

void TestBatteryData::estimatesTheTimeToEmpty_data()
{
    QTest::addColumn<qint64>("charge");
    QTest::addColumn<qint64>("capacity");
    QTest::addColumn<BatteryTime>("time");
    // Halves of 6000 mAh at 300 mA are 10 hours, though 30 have been written for it.
    QTest::newRow("half") << qint64(50) << qint64(6000) << BatteryTime { 10, 0 };
    QTest::newRow("empty") << qint64(0) << qint64(6000) << BatteryTime { 0, 0 };
    QTest::newRow("truncated") << qint64(43) << qint64(5103) << BatteryTime { 7, 18 };
    // In double precision the minutes would be 24 and 2.
    QTest::newRow("rounded down in single precision")
        << qint64(63) << qint64(4000) << BatteryTime { 8, 23 };
    QTest::newRow("rounded up in single precision")
        << qint64(15) << qint64(4100) << BatteryTime { 2, 3 };
    // In integers the capacity times the charge would overflow.
    QTest::newRow("beyond 64 bits")
        << qint64(100) << greatest << BatteryTime { 30744574200643584, 56 };
}

void TestBatteryData::estimatesTheTimeToEmpty()
{
    QFETCH(const qint64, charge);
    QFETCH(const qint64, capacity);
    QFETCH(const BatteryTime, time);
    BatteryData data;
    data.setTimeRemaining({ 7, 7 });
    data.setCharge(charge);
    data.setRawMaxCapacity(capacity);
    data.setAdapterCurrent(3.0F);
    QCOMPARE(data.estimatedTimeToEmpty().hours, time.hours);
    QCOMPARE(data.estimatedTimeToEmpty().minutes, time.minutes);
}

void TestBatteryData::keepsTheTimeThatStandsWithoutAnEstimate()
{
    const BatteryTime standing { 3, 33 };
    BatteryData data;
    data.setTimeRemaining(standing);
    QVERIFY(data.estimatedTimeToFull() == standing);
    QVERIFY(data.estimatedTimeToEmpty() == standing);
    data.setCharge(50);
    QVERIFY(data.estimatedTimeToFull() == standing);
    QVERIFY(data.estimatedTimeToEmpty() == standing);
    data.setCharge(std::nullopt);
    data.setRawMaxCapacity(6000);
    QVERIFY(data.estimatedTimeToFull() == standing);
    QVERIFY(data.estimatedTimeToEmpty() == standing);
}

void TestBatteryData::hasNoTimeToFullWhileNothingIsLeftToChargeWith()
{
    const BatteryTime standing { 3, 33 };
    BatteryData data;
    data.setTimeRemaining(standing);
    data.setRawMaxCapacity(6000);
    data.setAdapterCurrent(0.5F);
    data.setCharge(50);
    QVERIFY(data.estimatedTimeToFull() == BatteryTime());
    data.setCharge(100);
    QVERIFY(data.estimatedTimeToFull() == BatteryTime());
}

void TestBatteryData::stopsTheProcessWhenTheMissingChargeDoesNotFit()
{
    BatteryData data;
    data.setRawMaxCapacity(greatest);
    data.setCharge(98);
    QCOMPARE(test::lastWords([&data] { std::ignore = data.estimatedTimeToFull(); }),
             u"Integer overflow: 2 * 9223372036854775807"_s);
    data.setCharge(std::numeric_limits<qint64>::min());
    QCOMPARE(test::lastWords([&data] { std::ignore = data.estimatedTimeToFull(); }),
             u"Integer overflow: 100 - -9223372036854775808"_s);
}

FERRIN_TEST(QCoreApplication, TestBatteryData)
#include "test_batterydata.moc"
