// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterydata.h"
#include "menubar/iconview.h"
#include "menubar/itemcontent.h"
#include "settingswindow/menubaricon/mockupviews.h"
#include "settingswindow/menubaricon/statechoices.h"
#include "tests/settingswindow/stage.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using enum ItemState;

namespace {

/// The settings of one user, and what is chosen for one state.
struct Fixture
{
    explicit Fixture(ItemState itemState)
        : state(itemState)
    {
    }

    /// As stored before anybody watches over it.
    void store3(bool icon, bool charge, bool time)
    {
        const ItemSwitches which = switchesOf(state);
        switches.set(which.icon, icon);
        switches.set(which.charge, charge);
        switches.set(which.time, time);
    }
    void watch() { choices = std::make_unique<StateChoices>(state, sources()); }
    [[nodiscard]] StateChoices::Sources sources() { return { data, *settings, switches }; }
    [[nodiscard]] QList<bool> shown() const
    {
        return { choices->showIcon(), choices->showCharge(), choices->showTime() };
    }
    [[nodiscard]] bool stored(const QString &key) const { return store.stored.value(key).toBool(); }

    ItemState state;
    MemoryDefaultsStore store;
    BatteryData data;
    std::unique_ptr<SettingsData> settings = newSettings(store);
    DisplaySwitches switches { store };
    std::unique_ptr<StateChoices> choices;
};

void addStates()
{
    QTest::addColumn<ItemState>("state");
    QTest::newRow("discharging") << discharging;
    QTest::newRow("charging") << charging;
    QTest::newRow("charged") << charged;
}

} // namespace

class StateChoicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void previewsWhatTheItemWouldShow_data()
    {
        QTest::addColumn<ItemState>("state");
        QTest::addColumn<int>("mix");
        const QList<std::pair<QByteArray, ItemState>> states { { "discharging", discharging },
                                                               { "charging", charging },
                                                               { "charged", charged } };
        for (const auto &[name, state] : states) {
            for (int mix = 0; mix < 8; ++mix)
                QTest::addRow("%s, %s%s%s.", name.constData(), mix & 4 ? "I" : "",
                              mix & 2 ? "C" : "", mix & 1 ? "T" : "")
                    << state << mix;
        }
    }

    void previewsWhatTheItemWouldShow()
    {
        QFETCH(ItemState, state);
        QFETCH(int, mix);
        Fixture f(state);
        f.store3((mix & 4) != 0, (mix & 2) != 0, (mix & 1) != 0);
        f.watch();
        f.choices->setIcon(rawValue(availableIcons(state)[5]));
        f.data.setChargingStatus(sampleOf(state).status);
        f.data.setCharge(sampleOf(state).charge);
        f.data.setTimeRemaining(state == discharging ? BatteryTime { 4, 29 }
                                                     : BatteryTime { 0, 52 });
        const ItemContent item = contentFor(f.data, f.switches, *f.settings, true);
        QVERIFY(viewFor(f.choices->preview()) == viewFor(item));
        QCOMPARE(f.choices->sentence(), sentenceFor(item));
    }

    void itsLayoutsAreThoseOfTheItem()
    {
        Fixture f(discharging);
        f.store3(true, true, true);
        f.watch();
        const auto view = [&f] { return viewFor(f.choices->preview()); };
        QVERIFY(view().as<MockupWithChargeTimeIconView>());
        f.choices->setShowIcon(false);
        QVERIFY(view().as<MockupWithChargeTimeView>());
        f.choices->setShowTime(false);
        QVERIFY(view().as<MockupWithChargeView>());
        f.choices->setShowIcon(true);
        QVERIFY(view().as<MockupWithChargeIconView>());
        f.choices->setShowCharge(false);
        QVERIFY(view().as<MockupWithIconView>());
        f.choices->setShowTime(true);
        QVERIFY(view().as<MockupWithTimeIconView>());
        f.choices->setShowIcon(false);
        QCOMPARE(*view().as<MockupWithTimeView>(), MockupWithTimeView { u"4:29"_s });
    }

    /// A state's charge is a sample, but what the battery is doing is not.
    void showsItsIconAsTheBatteryIsNow()
    {
        Fixture f(charging);
        f.watch();
        const QSignalSpy changes(f.choices.get(), &StateChoices::previewChanged);
        f.data.setChargingStatus(BatteryChargingStatus::discharging);
        QCOMPARE(changes.count(), 1);
        const IconElement icon = f.choices->preview().icon.value();
        QCOMPARE(icon.status, BatteryChargingStatus::discharging);
        QCOMPARE(icon.charge, 78.0);
        QCOMPARE(f.choices->preview().status, BatteryChargingStatus::charging);
    }

    void turnsTheLastSwitchBackOnAtOnce()
    {
        Fixture f(discharging);
        f.watch();
        const QSignalSpy kept(f.choices.get(), &StateChoices::lastOneKept);
        f.choices->setShowIcon(false);
        f.choices->setShowCharge(false);
        QCOMPARE(kept.count(), 0);
        f.choices->setShowTime(false);
        QCOMPARE(kept.count(), 1);
        QCOMPARE(f.shown(), QList({ false, false, true }));
        QVERIFY(!f.stored(u"showIconWhenDischarging"_s));
        QVERIFY(!f.stored(u"showChargeWhenDischarging"_s));
        QVERIFY(f.stored(u"showTimeWhenDischarging"_s));
    }

    void whicheverOfThemIsTheLast_data()
    {
        QTest::addColumn<ItemState>("state");
        QTest::addColumn<int>("last");
        for (int last = 0; last < 3; ++last) {
            QTest::addRow("discharging %d", last) << discharging << last;
            QTest::addRow("charging %d", last) << charging << last;
            QTest::addRow("charged %d", last) << charged << last;
        }
    }

    void whicheverOfThemIsTheLast()
    {
        QFETCH(ItemState, state);
        QFETCH(int, last);
        Fixture f(state);
        f.watch();
        using Setter = void (StateChoices::*)(bool);
        const std::array<Setter, 3> setters { &StateChoices::setShowIcon,
                                              &StateChoices::setShowCharge,
                                              &StateChoices::setShowTime };
        for (const int step : { 1, 2, 0, 0 })
            (*f.choices.*setters[std::size_t((last + step) % 3)])(false);
        QList expected { false, false, false };
        expected[last] = true;
        QCOMPARE(f.shown(), expected);
    }

    void heedsAChangeFromElsewhere()
    {
        Fixture f(charging);
        f.watch();
        const QSignalSpy kept(f.choices.get(), &StateChoices::lastOneKept);
        const QSignalSpy changes(f.choices.get(), &StateChoices::switchesChanged);
        f.store.setObject(u"showTimeWhenCharging"_s, false);
        f.store.setObject(u"showIconWhenCharging"_s, false);
        QCOMPARE(changes.count(), 2);
        f.store.setObject(u"showChargeWhenCharging"_s, false);
        QCOMPARE(kept.count(), 1);
        QCOMPARE(f.shown(), QList({ false, true, false }));
        QVERIFY(f.stored(u"showChargeWhenCharging"_s));
    }

    void nobodyElseSeesAllOfThemOff()
    {
        Fixture f(discharging);
        f.watch();
        QList<QList<bool>> seen;
        connect(f.choices.get(), &StateChoices::switchesChanged, this,
                [&] { seen.append(f.shown()); });
        f.choices->setShowTime(false);
        f.choices->setShowCharge(false);
        f.choices->setShowIcon(false);
        QCOMPARE(seen.size(), 3);
        QVERIFY(!seen.contains(QList({ false, false, false })));
    }

    void leavesTheStateBeforeItWatchedAlone()
    {
        Fixture f(discharging);
        f.store3(false, false, false);
        f.store.writes.clear();
        f.watch();
        QCOMPARE(f.store.writes, QStringList());
        QVERIFY(viewFor(f.choices->preview()).as<MockupWithTimeView>());
    }

    void theHiddenTimeLetsIconAndChargeBothBeOffOnceCharged()
    {
        Fixture f(charged);
        f.watch();
        const QSignalSpy kept(f.choices.get(), &StateChoices::lastOneKept);
        f.choices->setShowIcon(false);
        f.choices->setShowCharge(false);
        QCOMPARE(kept.count(), 0);
        QCOMPARE(f.shown(), QList({ false, false, true }));
        QCOMPARE(*viewFor(f.choices->preview()).as<MockupWithChargeView>(),
                 MockupWithChargeView { u"100"_s });
    }

    void offersItsCatalogueInOrder_data() { addStates(); }

    void offersItsCatalogueInOrder()
    {
        QFETCH(ItemState, state);
        Fixture f(state);
        f.watch();
        QStringList expected;
        for (const Icon icon : availableIcons(state))
            expected.append(rawValue(icon));
        QCOMPARE(f.choices->icons(), expected);
        QCOMPARE(f.choices->glyphs().size(), state == discharging ? 8 : 12);
    }

    void theIconIsTheSelectedOneOfItsState_data() { addStates(); }

    void theIconIsTheSelectedOneOfItsState()
    {
        QFETCH(ItemState, state);
        Fixture f(state);
        f.watch();
        f.store.writes.clear();
        const QSignalSpy changes(f.choices.get(), &StateChoices::iconChanged);
        const Icon icon = availableIcons(state).back();
        f.choices->setIcon(rawValue(icon));
        QVERIFY(changes.count() > 0);
        QCOMPARE(f.choices->icon(), rawValue(icon));
        QCOMPARE(bindableIconSelected(state, *f.settings).value(), icon);
        QCOMPARE(f.store.writes.size(), 1);
        f.choices->setIcon(u"no icon"_s);
        QCOMPARE(f.choices->icon(), rawValue(icon));
    }
};

FERRIN_TEST(QGuiApplication, StateChoicesTest)
#include "test_statechoices.moc"
