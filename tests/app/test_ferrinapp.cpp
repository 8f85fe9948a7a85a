// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "app/ferrinapp.h"
#include "state/appcolorscheme.h"
#include "state/applicationappearance.h"
#include "state/shareddefaults.h"
#include "tests/app/fakewindows.h"
#include "tests/menubar/fakestatusbar.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeengine.h"
#include "tests/updates/fakenetwork.h"
#include "tests/updates/fakenotice.h"
#include "updates/appupdater.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

/// The application on a bar that stands nowhere. All that happens is in `log`, in its order.
struct Stage final : ApplicationAppearance
{
    Stage() { bar.onlyItem = &item; }

    void setAppearance(std::optional<Appearance> appearance) override
    {
        log.append(!appearance                           ? u"follow"_s
                       : *appearance == Appearance::dark ? u"dark"_s
                                                         : u"light"_s);
    }

    [[nodiscard]] FerrinApp::Parts parts()
    {
        return { .loadWindows =
                     [this] {
                         log.append(u"load"_s);
                         return windowsAreMissing ? nullptr
                                                  : std::make_unique<test::FakeWindows>(log);
                     },
                 .fillStatusItem =
                     [this](StatusItem &filled) {
                         log.append(&filled == &item ? u"fill"_s : u"fill another"_s);
                     } };
    }

    QStringList log;
    bool windowsAreMissing = false;
    test::FakeStatusItem item;
    test::FakeStatusBar bar;
    FerrinApp app { parts() };
};

} // namespace

class FerrinAppTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void leavesTheAppearanceToTheSystemOnFirstLaunch();
    void appliesTheStoredSchemeBeforeItFillsTheItem();
    void handsTheItemOverOnce();
    void fillsTheItemOfEachLaterBar();
    void loadsNoWindowsUntilOneOpens();
    void opensAndClosesTheDashboardByTheItem();
    void isTrueExactlyWhileTheDashboardIsShown();
    void staysClosedWhenTheWindowsAreMissing();
    void opensTheSettingsWindowByItsIdentifier();
    void opensWindowsWhereTheItemStands();
    void closesTheDashboardForTheSettings();
    void startsTheUpdaterWhileItIsConstructed();
    void opensTheWindowOfUpdatesWhenTheUpdaterWantsIt();
    void isInUseWhileAnyWindowIsShown();

private:
    test::FakeEngine m_engine;
    test::FakeNotice m_notice;
    test::FakeNetwork m_network;
    int m_timesLookedAtClock = 0;
};

void FerrinAppTest::initTestCase()
{
    setSharedDefaults(std::make_unique<test::MemoryDefaultsStore>());
    AppUpdater::setParts({ .store = sharedDefaults(),
                           .engine = m_engine,
                           .notice = m_notice,
                           .network = m_network,
                           .battery = [] { return BatteryReserve(); },
                           .now =
                               [this] {
                                   ++m_timesLookedAtClock;
                                   return QDateTime::currentDateTimeUtc();
                               } });
}

void FerrinAppTest::cleanup()
{
    AppColor::shared().setScheme(AppColorScheme::system);
}

void FerrinAppTest::leavesTheAppearanceToTheSystemOnFirstLaunch()
{
    Stage stage;
    QCOMPARE(AppColor::shared().scheme(), AppColorScheme::system);
    stage.app.useStatusBar(stage.bar);
    QTRY_COMPARE(stage.log, QStringList({ u"follow"_s, u"fill"_s }));
}

void FerrinAppTest::appliesTheStoredSchemeBeforeItFillsTheItem()
{
    AppColor::shared().setScheme(AppColorScheme::dark);
    Stage stage;
    stage.app.useStatusBar(stage.bar);
    QTRY_COMPARE(stage.log, QStringList({ u"dark"_s, u"fill"_s }));
}

void FerrinAppTest::handsTheItemOverOnce()
{
    Stage stage;
    stage.app.useStatusBar(stage.bar);
    QTRY_COMPARE(stage.log.count(u"fill"_s), 1);
    QCoreApplication::processEvents();
    QCOMPARE(stage.log.count(u"fill"_s), 1);
}

void FerrinAppTest::fillsTheItemOfEachLaterBar()
{
    Stage stage;
    test::FakeStatusItem other;
    test::FakeStatusBar later;
    later.onlyItem = &other;

    stage.app.useStatusBar(stage.bar);
    QTRY_COMPARE(stage.log.count(u"fill"_s), 1);
    stage.app.useStatusBar(later);
    QTRY_COMPARE(stage.log.count(u"fill another"_s), 1);

    // Only the item in use is listened to.
    Q_EMIT stage.item.activated();
    QVERIFY(!stage.app.isDashboardShown());
    Q_EMIT other.activated();
    QVERIFY(stage.app.isDashboardShown());
}

void FerrinAppTest::loadsNoWindowsUntilOneOpens()
{
    Stage stage;
    stage.app.useStatusBar(stage.bar);
    QTRY_COMPARE(stage.log.count(u"fill"_s), 1);
    QVERIFY(!stage.log.contains(u"load"_s));
    stage.app.openSettings();
    stage.app.setDashboardShown(true);
    QCOMPARE(stage.log.count(u"load"_s), 1);
}

void FerrinAppTest::opensAndClosesTheDashboardByTheItem()
{
    Stage stage;
    stage.app.useStatusBar(stage.bar);
    QTRY_COMPARE(stage.log.count(u"fill"_s), 1);
    stage.log.clear();

    Q_EMIT stage.item.activated();
    QCOMPARE(stage.log, QStringList({ u"load"_s, u"show"_s }));
    QVERIFY(stage.item.highlighted);
    Q_EMIT stage.item.activated();
    QCOMPARE(stage.log, QStringList({ u"load"_s, u"show"_s, u"hide"_s }));
    QVERIFY(!stage.item.highlighted);
}

void FerrinAppTest::isTrueExactlyWhileTheDashboardIsShown()
{
    QStringList log;
    std::unique_ptr<Windows> windows = std::make_unique<test::FakeWindows>(log);
    Windows *const raw = windows.get();
    FerrinApp app({ .loadWindows = [&windows] { return std::move(windows); },
                    .fillStatusItem = [](StatusItem &) {} });

    QVERIFY(!app.isDashboardShown());
    app.setDashboardShown(true);
    QCOMPARE(log, QStringList(u"show"_s));
    // The popover closed by itself.
    raw->dashboardClosed();
    QVERIFY(!app.isDashboardShown());
    QCOMPARE(log, QStringList({ u"show"_s, u"hide"_s }));
}

void FerrinAppTest::staysClosedWhenTheWindowsAreMissing()
{
    Stage stage;
    stage.windowsAreMissing = true;
    stage.app.setDashboardShown(true);
    QVERIFY(!stage.app.isDashboardShown());
    stage.app.openSettings();
    QCOMPARE(stage.log, QStringList({ u"load"_s, u"load"_s }));
}

void FerrinAppTest::opensTheSettingsWindowByItsIdentifier()
{
    Stage stage;
    stage.app.openSettings();
    QCOMPARE(stage.log, QStringList({ u"load"_s, u"FerrinSettings"_s }));
}

void FerrinAppTest::opensWindowsWhereTheItemStands()
{
    test::FakeStatusItem item;
    item.stands = { .item { 700, 10, 1, 1 } };
    test::FakeStatusBar bar;
    bar.onlyItem = &item;
    QStringList log;
    auto windows = std::make_unique<test::FakeWindows>(log);
    const test::FakeWindows *const fake = windows.get();
    FerrinApp app({ .loadWindows = [&windows] { return std::move(windows); },
                    .fillStatusItem = [](StatusItem &) {} });
    app.useStatusBar(bar);
    app.openSettings();
    QCOMPARE(fake->shownAt, item.stands);
}

void FerrinAppTest::closesTheDashboardForTheSettings()
{
    Stage stage;
    stage.app.setDashboardShown(true);
    stage.log.clear();
    stage.app.openSettings();
    QCOMPARE(stage.log, QStringList({ u"hide"_s, u"FerrinSettings"_s }));
    QVERIFY(!stage.app.isDashboardShown());
}

void FerrinAppTest::startsTheUpdaterWhileItIsConstructed()
{
    const Stage stage;
    // Nobody but the application has asked for it so far.
    QVERIFY(m_timesLookedAtClock > 0);
    QVERIFY(AppUpdater::shared().controller()->updater()->timer().isActive());
    QVERIFY(m_engine.checks.isEmpty());
}

void FerrinAppTest::opensTheWindowOfUpdatesWhenTheUpdaterWantsIt()
{
    Stage stage;
    Updater &updater = *AppUpdater::shared().controller()->updater();
    updater.checkForUpdates();
    QCOMPARE(stage.log, QStringList({ u"load"_s, u"FerrinUpdate"_s }));
    updater.session().cancel();
}

void FerrinAppTest::isInUseWhileAnyWindowIsShown()
{
    QStringList log;
    auto windows = std::make_unique<test::FakeWindows>(log);
    test::FakeWindows *const fake = windows.get();
    FerrinApp app({ .loadWindows = [&windows] { return std::move(windows); },
                    .fillStatusItem = [](StatusItem &) {} });
    QVERIFY(!app.isInUse());
    app.setDashboardShown(true);
    QVERIFY(app.isInUse());
    app.setDashboardShown(false);
    QVERIFY(!app.isInUse());
    fake->areShown = true;
    QVERIFY(app.isInUse());
}

QTEST_GUILESS_MAIN(FerrinAppTest)
#include "test_ferrinapp.moc"
