// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "fakestatusbar.h"
#include "itemsources.h"
#include "menubar/menubaritemprovider.h"
#include "tests/support/lastwords.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using enum BatteryChargingStatus;

namespace {

QString widthLine(double width)
{
    return u"debug: Setting menu bar icon with width: "_s + QString::asprintf("%f", width);
}

struct Fixture : ItemSources
{
    FakeStatusBar bar;
    FakeStatusItem item;
    std::unique_ptr<MenuBarItemProvider> provider;
    bool askedForBattery = false;

    Fixture()
    {
        bar.onlyItem = &item;
        bar.height = 24;
        provider = std::make_unique<MenuBarItemProvider>(
            MenuBarItemProvider::Parts { .statusBar = bar,
                                         .battery = [this]() -> BatteryDataProvider & {
                                             askedForBattery = true;
                                             return *battery;
                                         },
                                         .settings = *settings,
                                         .switches = *switches,
                                         .context = blackOnClear });
    }

    /// Until nothing follows any more.
    void settle()
    {
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
    }
};

} // namespace

class MenuBarItemProviderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasADetachedItemUntilTheRealOneArrives()
    {
        Fixture fixture;
        QVERIFY(!fixture.provider->statusItem().hasButton());
        fixture.provider->setStatusItem(fixture.item);
        QCOMPARE(&fixture.provider->statusItem(), &fixture.item);
    }

    void asksForTheSnapshotOnlyWithTheFirstContent()
    {
        Fixture fixture;
        fixture.provider->setStatusItem(fixture.item);
        QVERIFY(!fixture.askedForBattery);
        fixture.provider->update();
        QVERIFY(fixture.askedForBattery);
        QCOMPARE(fixture.log.take(), QStringList({ widthLine(48) }));
    }

    void takesItsHeightFromTheBarOnce()
    {
        Fixture fixture;
        fixture.bar.height = 30;
        QCOMPARE(fixture.provider->viewHeight(), 24.0);
    }

    void fillsTheItemAtTheStoredWidth()
    {
        Fixture fixture;
        fixture.settings->setStatusItemWidth(61.5F);
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->update();
        QCOMPARE(fixture.log.take(), QStringList({ widthLine(61.5) }));
        QCOMPARE(fixture.item.lengths, QList<qreal>({ 61.5 }));
        QCOMPARE(fixture.item.views.size(), 1u);
        QCOMPARE(fixture.item.views.front()->frameSize(), QSizeF(61.5, 24));
    }

    void replacesTheContentOfAnEarlierUpdate()
    {
        Fixture fixture;
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->update();
        fixture.provider->update();
        QCOMPARE(fixture.item.views.size(), 1u);
        QCOMPARE(fixture.item.removals, 2);
        fixture.log.ignoreRest();
    }

    void addsNothingToAnItemWithoutAButton()
    {
        Fixture fixture;
        fixture.item.button = false;
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->update();
        QCOMPARE(fixture.item.lengths.size(), 1);
        QVERIFY(fixture.item.views.empty());
        fixture.log.ignoreRest();
    }

    void updatesThePlaceholderWithoutHarm()
    {
        Fixture fixture;
        fixture.provider->update();
        QCOMPARE(fixture.provider->statusItem().length(), 48.0);
        QCOMPARE(fixture.log.take(), QStringList({ widthLine(48) }));
    }

    void resizesTheItemOnceAndComesToRest()
    {
        Fixture fixture;
        fixture.show(discharging, 37, { 4, 29 });
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->update();
        fixture.settle();
        const auto width = double(fixture.settings->statusItemWidth());
        QVERIFY(width != 48);
        QCOMPARE(fixture.log.take(), QStringList({ widthLine(48), widthLine(width) }));
        QCOMPARE(fixture.item.lengths, QList<qreal>({ 48.0, width }));
        fixture.store.writes.clear();
        fixture.settle();
        QCOMPARE(fixture.store.writes, QStringList());
    }

    void rebuildsTheItemOnTheTurnAfterItsWidthChanged()
    {
        Fixture fixture;
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->update();
        fixture.settle();
        const int removals = fixture.item.removals;
        fixture.settings->setStatusItemWidth(99);
        QCOMPARE(fixture.item.removals, removals);
        fixture.settle();
        QVERIFY(fixture.item.removals > removals);
        QVERIFY(fixture.item.lengths.contains(99.0));
        fixture.log.ignoreRest();
    }

    void doesNothingWhileTheWidthChangesByTenOrLess()
    {
        Fixture fixture;
        fixture.show(discharging, 37, { 4, 29 });
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->update();
        fixture.settle();
        const auto updates = fixture.item.lengths.size();
        fixture.show(discharging, 100, { 12, 29 });
        fixture.settle();
        QCOMPARE(fixture.item.lengths.size(), updates);
        QCOMPARE(fixture.item.views.front()->content().charge, u"100"_s);
        fixture.log.ignoreRest();
    }

    void theContextMenuQuits()
    {
        Fixture fixture;
        fixture.provider->setStatusItem(fixture.item);
        QCOMPARE(fixture.item.menu.size(), 1u);
        QCOMPARE(fixture.item.menu.front().title, u"Quit Ferrin"_s);
        QSignalSpy quits(fixture.provider.get(), &MenuBarItemProvider::quitRequested);
        Q_EMIT fixture.item.menuEntryTriggered(u"other"_s);
        QCOMPARE(quits.size(), 0);
        Q_EMIT fixture.item.menuEntryTriggered(fixture.item.menu.front().id);
        QCOMPARE(quits.size(), 1);
    }

    void anItemThatWasReplacedQuitsNothing()
    {
        Fixture fixture;
        FakeStatusItem later;
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->setStatusItem(later);
        QSignalSpy quits(fixture.provider.get(), &MenuBarItemProvider::quitRequested);
        Q_EMIT fixture.item.menuEntryTriggered(fixture.item.menu.front().id);
        QCOMPARE(quits.size(), 0);
    }

    void survivesItsItem()
    {
        Fixture fixture;
        {
            FakeStatusItem passing;
            fixture.provider->setStatusItem(passing);
        }
        fixture.provider->update();
        QVERIFY(!fixture.provider->statusItem().hasButton());
        fixture.log.ignoreRest();
    }

    void measuresAnewWithAnotherFont()
    {
        Fixture fixture;
        fixture.provider->setStatusItem(fixture.item);
        fixture.provider->setContext(blackOnClear);
        QVERIFY(fixture.item.views.empty());
        ViewContext mono = blackOnClear;
        mono.fontFamily = u"DejaVu Sans Mono"_s;
        fixture.provider->setContext(mono);
        QCOMPARE(fixture.item.views.size(), 1u);
        fixture.log.ignoreRest();
    }

    void stopsTheProcessWhenAskedForTooEarly()
    {
        QCOMPARE(lastWords([] { std::ignore = MenuBarItemProvider::shared(); }),
                 u"The menu bar item was asked for before its parts were handed over"_s);
    }

    void isOneForTheProcess()
    {
        static Fixture fixture;
        MenuBarItemProvider::setParts({ fixture.bar,
                                        []() -> BatteryDataProvider & { return *fixture.battery; },
                                        *fixture.settings, *fixture.switches, blackOnClear });
        QCOMPARE(&MenuBarItemProvider::shared(), &MenuBarItemProvider::shared());
        QCOMPARE(MenuBarItemProvider::shared().viewHeight(), 24.0);
    }
};

FERRIN_TEST(QGuiApplication, MenuBarItemProviderTest)
#include "test_menubaritemprovider.moc"
