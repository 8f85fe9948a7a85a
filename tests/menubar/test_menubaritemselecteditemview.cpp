// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "itemsources.h"
#include "menubar/itemhostingview.h"
#include "menubar/menubaritemselecteditemview.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using enum BatteryChargingStatus;

namespace {

const QString widthKey = u"statusItemWidth"_s;

/// A hosting view with its content, measured once. The time alone is shown, so that the width can
/// be steered through the hours.
struct Fixture : ItemSources
{
    ItemHostingView host;
    MenuBarItemSelectedItemView *view = nullptr;
    qreal firstWidth = 0;

    explicit Fixture(BatteryChargingStatus status = discharging)
    {
        switchAll(false, false, true);
        show(status, 37, { 4, 29 });
        store.writes.clear();
        view = new MenuBarItemSelectedItemView(host,
                                               { *battery, *settings, *switches, blackOnClear });
    }

    void measure() { QCoreApplication::processEvents(); }
    qsizetype widthWrites() const { return store.writes.count(widthKey); }
};

} // namespace

class MenuBarItemSelectedItemViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheContentAtOnceAndMeasuresItOnTheNextTurn()
    {
        Fixture fixture;
        QCOMPARE(fixture.host.content().time, u"4:29"_s);
        QCOMPARE(fixture.widthWrites(), 0);
        fixture.measure();
        QVERIFY(fixture.widthWrites() > 0);
        QCOMPARE(fixture.settings->statusItemWidth(), float(fixture.view->width()));
    }

    void theFirstMeasurementOfAnUnknownStatusStoresNothingThatFits()
    {
        Fixture fixture(unknown);
        fixture.settings->setStatusItemWidth(float(fixture.view->width()));
        fixture.store.writes.clear();
        fixture.measure();
        QCOMPARE(fixture.widthWrites(), 0);
    }

    void theFirstMeasurementOfAKnownStatusStoresTheWidth()
    {
        Fixture fixture(charging);
        fixture.settings->setStatusItemWidth(float(fixture.view->width()) + 1);
        fixture.store.writes.clear();
        fixture.measure();
        QCOMPARE(fixture.widthWrites(), 1);
    }

    void aDifferenceOfTenIsLeftAlone()
    {
        Fixture fixture;
        fixture.measure();
        const auto stored = float(fixture.view->width()) + 10.0F;
        fixture.settings->setStatusItemWidth(stored);
        fixture.store.writes.clear();
        fixture.data().setTimeRemaining({ 4, 28 });
        fixture.measure();
        QCOMPARE(fixture.settings->statusItemWidth(), stored);
        QCOMPARE(fixture.widthWrites(), 0);
    }

    void aDifferenceOfMoreThanTenIsStored_data()
    {
        QTest::addColumn<float>("difference");
        QTest::newRow("a little more") << 10.0625F;
        QTest::newRow("half a pixel more") << 10.5F;
        QTest::newRow("wider than it was") << -10.5F;
    }

    void aDifferenceOfMoreThanTenIsStored()
    {
        QFETCH(float, difference);
        Fixture fixture;
        fixture.measure();
        fixture.settings->setStatusItemWidth(float(fixture.view->width()) + difference);
        fixture.data().setTimeRemaining({ 4, 28 });
        fixture.measure();
        QCOMPARE(fixture.settings->statusItemWidth(), float(fixture.view->width()));
    }

    void aNewStateOfTheSameWidthIsStoredOnce()
    {
        Fixture fixture(charging);
        fixture.switches->setShowChargeWhenCharging(true);
        fixture.switches->setShowTimeWhenCharging(false);
        fixture.data().setCharge(100);
        fixture.measure();
        const float width = fixture.settings->statusItemWidth();
        fixture.store.writes.clear();

        fixture.data().setChargingStatus(charged);
        fixture.measure();
        QCOMPARE(float(fixture.view->width()), width);
        QCOMPARE(fixture.widthWrites(), 1);
    }

    void aSmallChangeOfWidthIsStoredWithANewState()
    {
        Fixture fixture(charging);
        fixture.measure();
        const float before = fixture.settings->statusItemWidth();
        fixture.data().setChargingStatus(discharging);
        fixture.data().setTimeRemaining({ 12, 29 });
        fixture.measure();
        const float after = fixture.settings->statusItemWidth();
        QVERIFY(after > before && after < before + 10);
        QCOMPARE(after, float(fixture.view->width()));
    }

    void oneRefreshIsMeasuredOnce()
    {
        Fixture fixture;
        fixture.measure();
        fixture.store.writes.clear();
        // On the way to the end of this refresh the item is wider than it ever is on show.
        fixture.switches->setShowIconWhenCharging(true);
        fixture.switches->setShowChargeWhenCharging(true);
        fixture.data().setChargingStatus(charging);
        fixture.switches->setShowIconWhenCharging(false);
        fixture.switches->setShowChargeWhenCharging(false);
        fixture.store.writes.clear();
        fixture.measure();
        QCOMPARE(fixture.widthWrites(), 1);
    }

    void tellsOfANewStoredWidthButNotOfTheFirstNorOfTheSame()
    {
        Fixture fixture;
        QSignalSpy changes(fixture.view, &MenuBarItemSelectedItemView::statusItemWidthChanged);
        fixture.settings->setStatusItemWidth(fixture.settings->statusItemWidth());
        QCOMPARE(changes.size(), 0);
        fixture.settings->setStatusItemWidth(99);
        QCOMPARE(changes.size(), 1);
        fixture.settings->setStatusItemWidth(99);
        QCOMPARE(changes.size(), 1);
    }

    void changesOnlyWhenSomethingShownChanges()
    {
        Fixture fixture;
        QSignalSpy changes(&fixture.host, &ItemHostingView::contentChanged);
        fixture.data().setAdapterWatts(65);
        fixture.data().setCharge(36);
        fixture.data().setTimeRemainingQuality(TimeQuality::real);
        fixture.switches->setShowIconWhenCharging(true);
        fixture.settings->setDischargingIconSelected(Icon::arrowDownCircle);
        QCOMPARE(changes.size(), 0);
        fixture.data().setTimeRemaining({ 4, 28 });
        QCOMPARE(changes.size(), 1);
        QCOMPARE(fixture.host.content().time, u"4:28"_s);
    }

    void readsNothingThatItDoesNotShow()
    {
        Fixture fixture;
        ItemHostingView host;
        int evaluations = 0;
        host.bindContent([&] {
            ++evaluations;
            return contentFor(fixture.data(), *fixture.switches, *fixture.settings, true);
        });
        const int first = evaluations;
        fixture.data().setCharge(36);
        fixture.settings->setDischargingIconSelected(Icon::arrowDownCircle);
        fixture.switches->setShowIconWhenCharged(true);
        QCOMPARE(evaluations, first);
        fixture.data().setTimeRemaining({ 4, 28 });
        QCOMPARE(evaluations, first + 1);
    }

    void followsASwitchAndASelectedIcon()
    {
        Fixture fixture;
        QSignalSpy changes(&fixture.host, &ItemHostingView::contentChanged);
        fixture.switches->setShowIconWhenDischarging(true);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(fixture.host.content().icon->icon, Icon::battery1V);
        fixture.settings->setDischargingIconSelected(Icon::arrowDownCircle);
        QCOMPARE(changes.size(), 2);
        QCOMPARE(fixture.host.content().icon->icon, Icon::arrowDownCircle);
        fixture.settings->setDischargingIconSelected(Icon::arrowDownCircle);
        QCOMPARE(changes.size(), 2);
    }

    void showsTheCrossedOutBatteryWithoutAService()
    {
        ItemSources sources(false);
        ItemHostingView host;
        auto *view = new MenuBarItemSelectedItemView(
            host, { *sources.battery, *sources.settings, *sources.switches, blackOnClear });
        QVERIFY(host.content().icon->fault);
        QVERIFY(view->width() > 0);
    }
};

FERRIN_TEST(QGuiApplication, MenuBarItemSelectedItemViewTest)
#include "test_menubaritemselecteditemview.moc"
