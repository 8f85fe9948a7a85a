// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/sources/registrybench.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using Bench = test::RegistryBench;
using Key = SmartBatteryKey;

namespace {

QVariantMap withAdapter(const QVariant &details)
{
    return { { u"AdapterDetails"_s, details } };
}

} // namespace

class AdapterDetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersTheAdaptersEntriesAsStored();
    void answersTheAdaptersCurrentAndVoltageInWholeUnits();
    void mayKnowTheAdaptersNameButNotItsWatts();
    void findsNoEntryWithoutAdapterDetails_data();
    void findsNoEntryWithoutAdapterDetails();
    void findsNoFloatInAnEntryThatIsNotANumber();
};

void AdapterDetailsTest::answersTheAdaptersEntriesAsStored()
{
    const Bench bench(withAdapter(QVariantMap {
        { u"Watts"_s, 65 }, { u"Name"_s, u"65W adapter"_s }, { u"Manufacturer"_s, 7.5 } }));
    QCOMPARE(bench.value(Key::watts), QVariant(65));
    QCOMPARE(bench.value(Key::watts).metaType(), QMetaType::fromType<int>());
    QCOMPARE(bench.value(Key::name), QVariant(u"65W adapter"_s));
    QCOMPARE(bench.value(Key::manufacturer), QVariant(7.5));
    QCOMPARE(bench.registry.lookups, QStringList(4, u"AdapterDetails"_s));
}

void AdapterDetailsTest::answersTheAdaptersCurrentAndVoltageInWholeUnits()
{
    const Bench bench(
        withAdapter(QVariantMap { { u"AdapterVoltage"_s, 20000 }, { u"Current"_s, 3000 } }));
    QCOMPARE(bench.value(Key::adapterVoltage), QVariant(20.0F));
    QCOMPARE(bench.value(Key::adapterVoltage).metaType(), QMetaType::fromType<float>());
    QCOMPARE(bench.value(Key::current), QVariant(3.0F));
    QCOMPARE(bench.value(Key::current).metaType(), QMetaType::fromType<float>());
}

void AdapterDetailsTest::mayKnowTheAdaptersNameButNotItsWatts()
{
    const Bench bench(withAdapter(QVariantMap { { u"Name"_s, u"pd charger"_s } }));
    QVERIFY(!bench.value(Key::watts).isValid());
    QCOMPARE(bench.value(Key::name), u"pd charger"_s);
    QVERIFY(!bench.value(Key::current).isValid());
    QVERIFY(!bench.value(Key::adapterVoltage).isValid());
}

void AdapterDetailsTest::findsNoEntryWithoutAdapterDetails_data()
{
    QTest::addColumn<QVariant>("details");
    QTest::newRow("missing") << QVariant();
    QTest::newRow("empty") << QVariant(QVariantMap());
    QTest::newRow("a text") << QVariant(u"Watts"_s);
    QTest::newRow("a list") << QVariant(QVariantList { 65 });
}

void AdapterDetailsTest::findsNoEntryWithoutAdapterDetails()
{
    QFETCH(const QVariant, details);
    const Bench bench(withAdapter(details));
    for (const Key key :
         { Key::watts, Key::name, Key::manufacturer, Key::current, Key::adapterVoltage })
        QVERIFY(!bench.value(key).isValid());
}

void AdapterDetailsTest::findsNoFloatInAnEntryThatIsNotANumber()
{
    const Bench bench(
        withAdapter(QVariantMap { { u"AdapterVoltage"_s, u"20000"_s }, { u"Current"_s, true } }));
    QVERIFY(!bench.value(Key::adapterVoltage).isValid());
    QVERIFY(!bench.value(Key::current).isValid());
}

FERRIN_TEST(QCoreApplication, AdapterDetailsTest)
#include "test_adapterdetails.moc"
