// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/storeddata.h"
#include "state/shareddefaults.h"
#include "tests/support/lastwords.h"
#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace Qt::StringLiterals;
using test::LogCapture;
using test::MemoryDefaultsStore;

namespace {

const QString nameKey = u"adapterNameStored"_s;
const QString manufacturerKey = u"adapterManufacturerStored"_s;
const QString wattsKey = u"adapterWattsStored"_s;
const QString voltageKey = u"adapterVoltageStored"_s;
const QString currentKey = u"adapterCurrentStored"_s;
const QStringList allKeys { nameKey, manufacturerKey, wattsKey, voltageKey, currentKey };

/// Stored data on a separate store, with the notifications of each property counted.
struct Bench
{
    Bench()
    {
        const auto count
            = [this](const char *name) { return [this, name] { notified.append(name); }; };
        QObject::connect(&data, &StoredData::adapterNameChanged, &data, count("name"));
        QObject::connect(&data, &StoredData::adapterManufacturerChanged, &data,
                         count("manufacturer"));
        QObject::connect(&data, &StoredData::adapterWattsChanged, &data, count("watts"));
        QObject::connect(&data, &StoredData::adapterVoltageChanged, &data, count("voltage"));
        QObject::connect(&data, &StoredData::adapterCurrentChanged, &data, count("current"));
    }

    void fill()
    {
        data.setAdapterName(u"65W charger"_s);
        data.setAdapterManufacturer(u"Maker"_s);
        data.setAdapterWatts(65);
        data.setAdapterVoltage(20.0F);
        data.setAdapterCurrent(3.25F);
    }

    void forget()
    {
        notified.clear();
        store.writes.clear();
    }

    MemoryDefaultsStore store;
    StoredData data { store };
    QByteArrayList notified;
};

} // namespace

class TestStoredData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAbsentWhereNothingIsStored();
    void readsWhatIsStoredOnEveryAccess();
    void readsAValueOfTheWrongTypeAsAbsent_data();
    void readsAValueOfTheWrongTypeAsAbsent();
    void storesTextsAndPlainNumbers();
    void tellsOfEachWriteOnceAndOfNothingElse();
    void writesTheSameValueOnlyOnce();
    void writesNothingOverNothing();
    void removesAStoredValueByWritingNothing();
    void neverRemovesTheCurrentByWritingNothing();
    void tellsNothingFromZeroAndEmptyText();
    void overwritesAValueOfTheWrongType();
    void seesAValueThatWasStoredBehindItsBack();
    void deletesAllInTheirOrder();
    void deletesWithoutTellingAnyone();
    void evaluatesABindingAgainWhenAValueThatItReadIsWritten();
    void survivesALaunch();
    void cannotBeSharedWithoutASharedStore();
    void isSharedOnTheSharedStore();
};

void TestStoredData::readsAbsentWhereNothingIsStored()
{
    const Bench bench;
    QCOMPARE(bench.data.adapterName(), std::nullopt);
    QCOMPARE(bench.data.adapterManufacturer(), std::nullopt);
    QCOMPARE(bench.data.adapterWatts(), std::nullopt);
    QCOMPARE(bench.data.adapterVoltage(), std::nullopt);
    QCOMPARE(bench.data.adapterCurrent(), std::nullopt);
}

void TestStoredData::readsWhatIsStoredOnEveryAccess()
{
    Bench bench;
    bench.store.stored = { { nameKey, u"a"_s },
                           { manufacturerKey, u"b"_s },
                           { wattsKey, 65 },
                           { voltageKey, 20 },
                           { currentKey, 3.25 } };
    QCOMPARE(bench.data.adapterName(), u"a"_s);
    QCOMPARE(bench.data.adapterManufacturer(), u"b"_s);
    QCOMPARE(bench.data.adapterWatts(), 65);
    QCOMPARE(bench.data.adapterVoltage(), 20.0F);
    QCOMPARE(bench.data.adapterCurrent(), 3.25F);
    bench.store.stored.insert(wattsKey, 100);
    bench.store.stored.remove(nameKey);
    QCOMPARE(bench.data.adapterWatts(), 100);
    QCOMPARE(bench.data.adapterName(), std::nullopt);
}

void TestStoredData::readsAValueOfTheWrongTypeAsAbsent_data()
{
    QTest::addColumn<QVariant>("texts");
    QTest::addColumn<QVariant>("watts");
    QTest::addColumn<QVariant>("floats");
    QTest::newRow("the other kind") << QVariant(65) << QVariant(u"65"_s) << QVariant(u"20"_s);
    QTest::newRow("bool") << QVariant(true) << QVariant(true) << QVariant(true);
    QTest::newRow("data") << QVariant(QByteArray("a")) << QVariant(QByteArray("65"))
                          << QVariant(QByteArray("20"));
    QTest::newRow("fraction of a watt")
        << QVariant(1.5) << QVariant(1.5) << QVariant(QVariantMap());
}

void TestStoredData::readsAValueOfTheWrongTypeAsAbsent()
{
    QFETCH(const QVariant, texts);
    QFETCH(const QVariant, watts);
    QFETCH(const QVariant, floats);
    Bench bench;
    bench.store.stored = { { nameKey, texts },
                           { manufacturerKey, texts },
                           { wattsKey, watts },
                           { voltageKey, floats },
                           { currentKey, floats } };
    QCOMPARE(bench.data.adapterName(), std::nullopt);
    QCOMPARE(bench.data.adapterManufacturer(), std::nullopt);
    QCOMPARE(bench.data.adapterWatts(), std::nullopt);
    QCOMPARE(bench.data.adapterVoltage(), std::nullopt);
    QCOMPARE(bench.data.adapterCurrent(), std::nullopt);
}

void TestStoredData::storesTextsAndPlainNumbers()
{
    Bench bench;
    bench.fill();
    const QVariantMap expected { { nameKey, u"65W charger"_s },
                                 { manufacturerKey, u"Maker"_s },
                                 { wattsKey, qint64(65) },
                                 { voltageKey, 20.0F },
                                 { currentKey, 3.25F } };
    QCOMPARE(bench.store.stored, expected);
    QCOMPARE(bench.data.adapterName(), u"65W charger"_s);
    QCOMPARE(bench.data.adapterManufacturer(), u"Maker"_s);
    QCOMPARE(bench.data.adapterWatts(), 65);
    QCOMPARE(bench.data.adapterVoltage(), 20.0F);
    QCOMPARE(bench.data.adapterCurrent(), 3.25F);
}

void TestStoredData::tellsOfEachWriteOnceAndOfNothingElse()
{
    Bench bench;
    bench.fill();
    QCOMPARE(bench.notified,
             QByteArrayList({ "name", "manufacturer", "watts", "voltage", "current" }));
    bench.data.setAdapterWatts(100);
    QCOMPARE(bench.notified.mid(5), QByteArrayList({ "watts" }));
}

void TestStoredData::writesTheSameValueOnlyOnce()
{
    Bench bench;
    bench.fill();
    bench.forget();
    bench.fill();
    QCOMPARE(bench.notified, QByteArrayList());
    QCOMPARE(bench.store.writes, QStringList());
}

void TestStoredData::writesNothingOverNothing()
{
    Bench bench;
    bench.data.setAdapterName(std::nullopt);
    bench.data.setAdapterManufacturer(std::nullopt);
    bench.data.setAdapterWatts(std::nullopt);
    bench.data.setAdapterVoltage(std::nullopt);
    bench.data.setAdapterCurrent(std::nullopt);
    QCOMPARE(bench.notified, QByteArrayList());
    QCOMPARE(bench.store.writes, QStringList());
}

void TestStoredData::removesAStoredValueByWritingNothing()
{
    Bench bench;
    bench.fill();
    bench.forget();
    bench.data.setAdapterName(std::nullopt);
    bench.data.setAdapterManufacturer(std::nullopt);
    bench.data.setAdapterWatts(std::nullopt);
    bench.data.setAdapterVoltage(std::nullopt);
    QCOMPARE(bench.store.stored.keys(), QStringList(currentKey));
    QCOMPARE(bench.notified, QByteArrayList({ "name", "manufacturer", "watts", "voltage" }));
}

void TestStoredData::neverRemovesTheCurrentByWritingNothing()
{
    Bench bench;
    bench.fill();
    bench.forget();
    bench.data.setAdapterCurrent(std::nullopt);
    QCOMPARE(bench.store.stored.value(currentKey), QVariant(3.25F));
    QCOMPARE(bench.data.adapterCurrent(), 3.25F);
    QCOMPARE(bench.notified, QByteArrayList());
    QCOMPARE(bench.store.writes, QStringList());
    bench.data.setAdapterCurrent(2.0F);
    QCOMPARE(bench.data.adapterCurrent(), 2.0F);
    QCOMPARE(bench.notified, QByteArrayList({ "current" }));
}

void TestStoredData::tellsNothingFromZeroAndEmptyText()
{
    Bench bench;
    bench.data.setAdapterName(u""_s);
    bench.data.setAdapterManufacturer(u""_s);
    bench.data.setAdapterWatts(0);
    bench.data.setAdapterVoltage(0.0F);
    bench.data.setAdapterCurrent(0.0F);
    QCOMPARE(bench.store.writes, allKeys);
    QCOMPARE(bench.data.adapterName(), u""_s);
    QCOMPARE(bench.data.adapterManufacturer(), u""_s);
    QCOMPARE(bench.data.adapterWatts(), 0);
    QCOMPARE(bench.data.adapterVoltage(), 0.0F);
    QCOMPARE(bench.data.adapterCurrent(), 0.0F);
}

void TestStoredData::overwritesAValueOfTheWrongType()
{
    Bench bench;
    bench.store.stored.insert(wattsKey, u"65"_s);
    bench.data.setAdapterWatts(std::nullopt);
    QCOMPARE(bench.store.stored.value(wattsKey), QVariant(u"65"_s));
    bench.data.setAdapterWatts(65);
    QCOMPARE(bench.store.stored.value(wattsKey), QVariant(qint64(65)));
    QCOMPARE(bench.notified, QByteArrayList({ "watts" }));
}

void TestStoredData::seesAValueThatWasStoredBehindItsBack()
{
    Bench bench;
    bench.data.setAdapterWatts(65);
    bench.store.stored.insert(wattsKey, 100);
    bench.forget();
    bench.data.setAdapterWatts(100);
    QCOMPARE(bench.store.writes, QStringList());
    bench.data.setAdapterWatts(65);
    QCOMPARE(bench.store.writes, QStringList(wattsKey));
}

void TestStoredData::deletesAllInTheirOrder()
{
    Bench bench;
    bench.fill();
    bench.store.stored.insert(u"appColor"_s, u"dark"_s);
    bench.forget();
    LogCapture log;
    bench.data.deleteAll();
    QCOMPARE(log.take(), QStringList(u"info: Deleting all stored power adaper info"_s));
    QCOMPARE(bench.store.writes, allKeys);
    QCOMPARE(bench.store.stored.keys(), QStringList(u"appColor"_s));
    QCOMPARE(bench.data.adapterName(), std::nullopt);
    QCOMPARE(bench.data.adapterManufacturer(), std::nullopt);
    QCOMPARE(bench.data.adapterWatts(), std::nullopt);
    QCOMPARE(bench.data.adapterVoltage(), std::nullopt);
    QCOMPARE(bench.data.adapterCurrent(), std::nullopt);
}

void TestStoredData::deletesWithoutTellingAnyone()
{
    Bench bench;
    bench.fill();
    QProperty<QString> seen;
    seen.setBinding([&bench] { return bench.data.adapterName().value_or(u"none"_s); });
    bench.forget();
    LogCapture log;
    bench.data.deleteAll();
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(bench.notified, QByteArrayList());
    QCOMPARE(seen.value(), u"65W charger"_s);
    bench.data.setAdapterName(u"charger"_s);
    QCOMPARE(seen.value(), u"charger"_s);
}

void TestStoredData::evaluatesABindingAgainWhenAValueThatItReadIsWritten()
{
    Bench bench;
    int evaluations = 0;
    QProperty<QString> seen;
    seen.setBinding([&] {
        ++evaluations;
        return bench.data.adapterManufacturer().value_or(u"none"_s)
            + QString::number(bench.data.adapterWatts().value_or(-1))
            + QString::number(double(bench.data.adapterVoltage().value_or(-1.0F)))
            + QString::number(double(bench.data.adapterCurrent().value_or(-1.0F)));
    });
    QCOMPARE(seen.value(), u"none-1-1-1"_s);
    bench.data.setAdapterManufacturer(u"Maker"_s);
    QCOMPARE(seen.value(), u"Maker-1-1-1"_s);
    bench.data.setAdapterWatts(65);
    QCOMPARE(seen.value(), u"Maker65-1-1"_s);
    bench.data.setAdapterVoltage(20.0F);
    QCOMPARE(seen.value(), u"Maker6520-1"_s);
    bench.data.setAdapterCurrent(3.0F);
    QCOMPARE(seen.value(), u"Maker65203"_s);
    evaluations = 0;
    bench.data.setAdapterName(u"charger"_s);
    bench.data.setAdapterWatts(65);
    QCOMPARE(evaluations, 0);
}

void TestStoredData::survivesALaunch()
{
    MemoryDefaultsStore store;
    {
        StoredData data(store);
        data.setAdapterName(u"charger"_s);
    }
    const StoredData data(store);
    QCOMPARE(data.adapterName(), u"charger"_s);
}

void TestStoredData::cannotBeSharedWithoutASharedStore()
{
    QVERIFY(test::lastWords([] { std::ignore = StoredData::shared(); }));
}

void TestStoredData::isSharedOnTheSharedStore()
{
    auto store = std::make_unique<MemoryDefaultsStore>();
    MemoryDefaultsStore &shared = *store;
    setSharedDefaults(std::move(store));
    StoredData &data = StoredData::shared();
    QCOMPARE(&data, &StoredData::shared());
    data.setAdapterWatts(65);
    QCOMPARE(shared.stored.keys(), QStringList(wattsKey));
}

FERRIN_TEST(QCoreApplication, TestStoredData)
#include "test_storeddata.moc"
