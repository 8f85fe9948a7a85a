// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/displayswitches.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <array>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

/// A switch as its users call it, and the key that it is stored under.
struct Named
{
    QString key;
    bool (DisplaySwitches::*isOn)() const;
    void (DisplaySwitches::*set)(bool);
};

const std::array all {
    Named { u"showIconWhenDischarging"_s, &DisplaySwitches::showIconWhenDischarging,
            &DisplaySwitches::setShowIconWhenDischarging },
    Named { u"showChargeWhenDischarging"_s, &DisplaySwitches::showChargeWhenDischarging,
            &DisplaySwitches::setShowChargeWhenDischarging },
    Named { u"showTimeWhenDischarging"_s, &DisplaySwitches::showTimeWhenDischarging,
            &DisplaySwitches::setShowTimeWhenDischarging },
    Named { u"showIconWhenCharging"_s, &DisplaySwitches::showIconWhenCharging,
            &DisplaySwitches::setShowIconWhenCharging },
    Named { u"showChargeWhenCharging"_s, &DisplaySwitches::showChargeWhenCharging,
            &DisplaySwitches::setShowChargeWhenCharging },
    Named { u"showTimeWhenCharging"_s, &DisplaySwitches::showTimeWhenCharging,
            &DisplaySwitches::setShowTimeWhenCharging },
    Named { u"showIconWhenCharged"_s, &DisplaySwitches::showIconWhenCharged,
            &DisplaySwitches::setShowIconWhenCharged },
    Named { u"showChargeWhenCharged"_s, &DisplaySwitches::showChargeWhenCharged,
            &DisplaySwitches::setShowChargeWhenCharged },
    Named { u"showTimeWhenCharged"_s, &DisplaySwitches::showTimeWhenCharged,
            &DisplaySwitches::setShowTimeWhenCharged },
};

} // namespace

class DisplaySwitchesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOnUntilItIsSetAndWritesNothingByReading()
    {
        MemoryDefaultsStore store;
        const DisplaySwitches switches(store);
        for (const Named &each : all)
            QVERIFY2((switches.*each.isOn)(), qPrintable(each.key));
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
        for (const Named &each : all)
            store.stored.insert(each.key, value);
        const DisplaySwitches switches(store);
        for (const Named &each : all)
            QVERIFY2((switches.*each.isOn)(), qPrintable(each.key));
        QCOMPARE(store.writes, QStringList());
    }

    void storesEachSwitchUnderItsNameOnly()
    {
        for (const Named &each : all) {
            MemoryDefaultsStore store;
            DisplaySwitches switches(store);
            (switches.*each.set)(false);
            QCOMPARE(store.stored, QVariantMap({ { each.key, false } }));
            for (const Named &other : all)
                QCOMPARE((switches.*other.isOn)(), other.key != each.key);
        }
    }

    void findsASwitchByItsDisplaySwitchToo()
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
};

FERRIN_TEST(QCoreApplication, DisplaySwitchesTest)
#include "test_displayswitches.moc"
