// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/displayswitches.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QMetaProperty>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QStringList names {
    u"showIconWhenDischarging"_s, u"showChargeWhenDischarging"_s, u"showTimeWhenDischarging"_s,
    u"showIconWhenCharging"_s,    u"showChargeWhenCharging"_s,    u"showTimeWhenCharging"_s,
    u"showIconWhenCharged"_s,     u"showChargeWhenCharged"_s,     u"showTimeWhenCharged"_s,
};

bool read(const DisplaySwitches &switches, const QString &name)
{
    return switches.property(name.toLatin1().constData()).toBool();
}

} // namespace

class DisplaySwitchesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasExactlyTheNineSwitchesAsProperties()
    {
        QStringList properties;
        const QMetaObject &meta = DisplaySwitches::staticMetaObject;
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            properties.append(QString::fromLatin1(meta.property(i).name()));
            QVERIFY(meta.property(i).isBindable());
            QVERIFY(meta.property(i).isWritable());
        }
        QCOMPARE(properties, names);
    }

    void isOnUntilItIsSetAndWritesNothingByReading()
    {
        MemoryDefaultsStore store;
        const DisplaySwitches switches(store);
        for (const QString &name : names)
            QVERIFY2(read(switches, name), qPrintable(name));
        QCOMPARE(store.writes, QStringList());
        QVERIFY(store.stored.isEmpty());
    }

    void takesAValueOfAnotherTypeForOn_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("number 0") << QVariant(0);
        QTest::newRow("text") << QVariant(u"false"_s);
        QTest::newRow("empty text") << QVariant(u""_s);
        QTest::newRow("data") << QVariant(QByteArray("false"));
    }

    void takesAValueOfAnotherTypeForOn()
    {
        QFETCH(QVariant, value);
        MemoryDefaultsStore store;
        for (const QString &name : names)
            store.stored.insert(name, value);
        const DisplaySwitches switches(store);
        for (const QString &name : names)
            QVERIFY2(read(switches, name), qPrintable(name));
        QCOMPARE(store.writes, QStringList());
    }

    void storesEachSwitchUnderItsNameAlone()
    {
        for (const QString &name : names) {
            MemoryDefaultsStore store;
            DisplaySwitches switches(store);
            QVERIFY(switches.setProperty(name.toLatin1().constData(), false));
            QCOMPARE(store.stored, QVariantMap({ { name, false } }));
            for (const QString &other : names)
                QCOMPARE(read(switches, other), other != name);
        }
    }

    void findsASwitchByItsPlaceToo()
    {
        MemoryDefaultsStore store;
        DisplaySwitches switches(store);
        switches.set(DisplaySwitch::showTimeWhenCharging, false);
        QVERIFY(!switches.isOn(DisplaySwitch::showTimeWhenCharging));
        QVERIFY(!switches.showTimeWhenCharging());
        QVERIFY(switches.showTimeWhenCharged());
    }

    void evaluatesABindingAgainForTheSwitchThatItRead()
    {
        MemoryDefaultsStore store;
        DisplaySwitches switches(store);
        int evaluations = 0;
        QProperty<bool> shown([&] {
            ++evaluations;
            return switches.showChargeWhenCharged();
        });
        QVERIFY(shown.value());
        switches.setShowIconWhenCharged(false);
        QCOMPARE(evaluations, 1);
        switches.setShowChargeWhenCharged(false);
        QVERIFY(!shown.value());
        QCOMPARE(evaluations, 2);
    }

    void followsWhatOthersInTheProcessWriteToTheStore()
    {
        MemoryDefaultsStore store;
        DisplaySwitches switches(store);
        QProperty<bool> shown([&] { return switches.showIconWhenDischarging(); });
        store.setObject(u"showIconWhenDischarging"_s, false);
        QVERIFY(!shown.value());
        store.setObject(u"showIconWhenDischarging"_s, u"no"_s);
        QVERIFY(shown.value());
    }

    void offersReadOnlyBindables()
    {
        MemoryDefaultsStore store;
        DisplaySwitches switches(store);
        QVERIFY(switches.bindableShowIconWhenCharged().isReadOnly());
    }
};

FERRIN_TEST(QCoreApplication, DisplaySwitchesTest)
#include "test_displayswitches.moc"
