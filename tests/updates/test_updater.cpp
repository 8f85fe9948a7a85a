// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/testmain.h"
#include "tests/updates/fakeengine.h"
#include "tests/updates/fakenetwork.h"
#include "tests/updates/fakenotice.h"
#include "updates/appupdater.h"

#include <QTest>
#include <QTimeZone>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Stage = UpdateSession::Stage;

namespace {

Release someRelease()
{
    return { u"1.3.0"_s, u"ferrin;1.3.0-1;amd64;main"_s, {}, {}, {} };
}

struct Bench
{
    [[nodiscard]] Updater::Parts parts()
    {
        return { .store = store,
                 .engine = engine,
                 .notice = notice,
                 .network = network,
                 .battery = [this] { return battery; },
                 .now = [this] { return now; } };
    }

    [[nodiscard]] Updater &launch()
    {
        updater.emplace(parts());
        updater->start();
        return *updater;
    }

    MemoryDefaultsStore store;
    FakeEngine engine;
    FakeNotice notice;
    FakeNetwork network;
    BatteryReserve battery { 80, true };
    QDateTime now { QDate(2026, 5, 1), QTime(12, 0), QTimeZone::utc() };
    std::optional<Updater> updater;
    LogCapture log;
};

} // namespace

class UpdaterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void checksByItselfOnceADay();
    void checksAgainTheSameDayOnlyWhenTheUserAsks();
    void countsTheUsersOwnChecks();
    void doesNotLookInTheFirstMinute();
    void hasOneTimerAndACoarseOne();
    void looksAgainWithinTheHour();
    void waitsAnHourWhereTheConditionsAreNotRight();
    void staysOffAMeteredConnection();
    void waitsForAConnection();
    void sparesALowBattery_data();
    void sparesALowBattery();
    void checksOnAnyNetworkAndBatteryWhenTheUserAsks();
    void keepsItsSwitchesAcrossLaunches();
    void checksAndDoesNotDownloadByDefault();
    void stopsItsTimerWithTheSwitch();
    void doesNotBeginWhatTheUserSwitchedOffMeanwhile();
    void downloadsByItselfWhereTheUserLetsIt();
    void survivesAnAnswerOfTheNetworkThatComesTooLate();
    void cannotCheckWhileACheckIsRunning();
    void canCheckAgainWhateverTheCheckFound();
    void doesNothingAtAllForACopyThatNoPackageInstalled_data();
    void doesNothingAtAllForACopyThatNoPackageInstalled();
    void restsWhileTheSystemHasNoPackageService();
    void looksNoMoreOnceItIsKnownThatNoPackageOwnsTheProgram();
    void tellsOfAnOfferByANotification();
    void tellsOfAnUnseenOfferOnce();
    void withdrawsTheNotificationOfWhatIsInstalledByNow();
    void isStartedByItsController();

private:
    std::optional<Bench> m_bench;
};

void UpdaterTest::checksByItselfOnceADay()
{
    Updater &updater = m_bench->launch();
    for (int hour = 0; hour < 49; ++hour) {
        updater.look();
        if (updater.session().stage() == Stage::checking)
            Q_EMIT m_bench->engine.checked(std::nullopt);
        m_bench->now = m_bench->now.addSecs(3600);
    }
    QCOMPARE(m_bench->engine.checks.size(), 3);
    QCOMPARE(m_bench->log.take().size(), 3);
}

void UpdaterTest::checksAgainTheSameDayOnlyWhenTheUserAsks()
{
    m_bench->launch().look();
    m_bench->updater->session().cancel();
    // The program was ended and started again.
    m_bench->launch().look();
    QCOMPARE(m_bench->engine.checks.size(), 1);
    m_bench->updater->checkForUpdates();
    QCOMPARE(m_bench->engine.checks.size(), 2);
}

void UpdaterTest::countsTheUsersOwnChecks()
{
    m_bench->launch().checkForUpdates();
    m_bench->updater->session().cancel();
    m_bench->updater->look();
    QCOMPARE(m_bench->engine.checks.size(), 1);
}

void UpdaterTest::doesNotLookInTheFirstMinute()
{
    QCOMPARE(m_bench->launch().timer().intervalAsDuration(), 61s);
    QVERIFY(m_bench->updater->timer().isActive());
    QVERIFY(m_bench->engine.checks.isEmpty());
    QCOMPARE(m_bench->network.asked, 0);
}

void UpdaterTest::hasOneTimerAndACoarseOne()
{
    QVERIFY(m_bench->launch().timer().isSingleShot());
    QCOMPARE(m_bench->updater->timer().timerType(), Qt::VeryCoarseTimer);
    QCOMPARE(m_bench->updater->findChildren<QTimer *>().size(), 0);
}

void UpdaterTest::looksAgainWithinTheHour()
{
    m_bench->launch().look();
    QVERIFY(m_bench->updater->timer().isActive());
    QCOMPARE(m_bench->updater->timer().intervalAsDuration(), 1h);
    m_bench->updater->session().cancel();
    m_bench->now = m_bench->now.addSecs(24 * 3600 - 600);
    m_bench->updater->look();
    QCOMPARE(m_bench->updater->timer().intervalAsDuration(), 10min);
}

void UpdaterTest::waitsAnHourWhereTheConditionsAreNotRight()
{
    m_bench->network.reach = NetworkReach::metered;
    m_bench->launch().look();
    QCOMPARE(m_bench->updater->timer().intervalAsDuration(), 1h);
}

void UpdaterTest::staysOffAMeteredConnection()
{
    m_bench->network.reach = NetworkReach::metered;
    m_bench->launch().look();
    QCOMPARE(m_bench->network.asked, 1);
    QVERIFY(m_bench->engine.checks.isEmpty());
    m_bench->network.reach = NetworkReach::free;
    m_bench->updater->look();
    QCOMPARE(m_bench->engine.checks.size(), 1);
}

void UpdaterTest::waitsForAConnection()
{
    m_bench->network.reach = NetworkReach::none;
    m_bench->launch().look();
    QVERIFY(m_bench->engine.checks.isEmpty());
    m_bench->network.reach = NetworkReach::free;
    m_bench->updater->look();
    QCOMPARE(m_bench->engine.checks.size(), 1);
}

void UpdaterTest::sparesALowBattery_data()
{
    QTest::addColumn<int>("charge");
    QTest::addColumn<bool>("discharging");
    QTest::addColumn<bool>("checks");
    QTest::newRow("19 and falling") << 19 << true << false;
    QTest::newRow("empty and falling") << 0 << true << false;
    QTest::newRow("20 and falling") << 20 << true << true;
    QTest::newRow("19 and rising") << 19 << false << true;
    QTest::newRow("no battery") << -1 << false << true;
    QTest::newRow("a battery that says nothing") << -1 << true << true;
}

void UpdaterTest::sparesALowBattery()
{
    QFETCH(int, charge);
    QFETCH(bool, discharging);
    QFETCH(bool, checks);
    m_bench->battery = { charge < 0 ? std::nullopt : std::optional<qint64>(charge), discharging };
    m_bench->launch().look();
    QCOMPARE(!m_bench->engine.checks.isEmpty(), checks);
}

void UpdaterTest::checksOnAnyNetworkAndBatteryWhenTheUserAsks()
{
    m_bench->network.reach = NetworkReach::metered;
    m_bench->battery = { 3, true };
    m_bench->launch().setAutomaticallyChecksForUpdates(false);
    m_bench->updater->checkForUpdates();
    QCOMPARE(m_bench->engine.checks.size(), 1);
    QCOMPARE(m_bench->network.asked, 0);
}

void UpdaterTest::keepsItsSwitchesAcrossLaunches()
{
    m_bench->launch().setAutomaticallyChecksForUpdates(false);
    m_bench->updater->setAutomaticallyDownloadsUpdates(true);
    QVERIFY(!m_bench->launch().automaticallyChecksForUpdates());
    QVERIFY(m_bench->updater->automaticallyDownloadsUpdates());
    m_bench->updater->setAutomaticallyChecksForUpdates(true);
    m_bench->updater->setAutomaticallyDownloadsUpdates(false);
    QVERIFY(m_bench->launch().automaticallyChecksForUpdates());
    QVERIFY(!m_bench->updater->automaticallyDownloadsUpdates());
}

void UpdaterTest::checksAndDoesNotDownloadByDefault()
{
    QVERIFY(m_bench->launch().automaticallyChecksForUpdates());
    QVERIFY(!m_bench->updater->automaticallyDownloadsUpdates());
    QVERIFY(m_bench->store.writes.isEmpty());
    m_bench->store.stored.insert(u"automaticallyChecksForUpdates"_s, u"no"_s);
    QVERIFY(m_bench->launch().automaticallyChecksForUpdates());
}

void UpdaterTest::stopsItsTimerWithTheSwitch()
{
    m_bench->launch().setAutomaticallyChecksForUpdates(false);
    QVERIFY(!m_bench->updater->timer().isActive());
    m_bench->updater->look();
    QVERIFY(m_bench->engine.checks.isEmpty());
    m_bench->updater->setAutomaticallyChecksForUpdates(true);
    QVERIFY(m_bench->updater->timer().isActive());
}

void UpdaterTest::doesNotBeginWhatTheUserSwitchedOffMeanwhile()
{
    m_bench->network.answersLater = true;
    m_bench->launch().look();
    m_bench->updater->setAutomaticallyChecksForUpdates(false);
    m_bench->network.waiting(NetworkReach::free);
    QVERIFY(m_bench->engine.checks.isEmpty());
}

void UpdaterTest::downloadsByItselfWhereTheUserLetsIt()
{
    m_bench->launch().setAutomaticallyDownloadsUpdates(true);
    m_bench->updater->look();
    Q_EMIT m_bench->engine.checked(someRelease());
    QCOMPARE(m_bench->engine.downloads.size(), 1);
    m_bench->log.ignoreRest();
}

void UpdaterTest::survivesAnAnswerOfTheNetworkThatComesTooLate()
{
    m_bench->network.answersLater = true;
    m_bench->launch().look();
    m_bench->updater.reset();
    m_bench->network.waiting(NetworkReach::free);
    QVERIFY(m_bench->engine.checks.isEmpty());
}

void UpdaterTest::cannotCheckWhileACheckIsRunning()
{
    Updater &updater = m_bench->launch();
    QList<bool> values;
    const auto handler = updater.bindableCanCheckForUpdates().addNotifier(
        [&] { values.append(updater.canCheckForUpdates()); });
    QVERIFY(updater.canCheckForUpdates());
    updater.checkForUpdates();
    QVERIFY(!updater.canCheckForUpdates());
    updater.checkForUpdates();
    QCOMPARE(m_bench->engine.checks.size(), 1);
    updater.session().cancel();
    QCOMPARE(values, QList({ false, true }));
}

void UpdaterTest::canCheckAgainWhateverTheCheckFound()
{
    Updater &updater = m_bench->launch();
    updater.checkForUpdates();
    Q_EMIT m_bench->engine.failed({ UpdateFailure::tooSlow, {} });
    QVERIFY(updater.canCheckForUpdates());
    updater.checkForUpdates();
    QCOMPARE(updater.session().stage(), Stage::checking);
    m_bench->log.ignoreRest();
}

void UpdaterTest::doesNothingAtAllForACopyThatNoPackageInstalled_data()
{
    QTest::addColumn<UpdateSupport>("support");
    for (const auto support : { UpdateSupport::notPackaged, UpdateSupport::sandboxed })
        QTest::addRow("%d", int(support)) << support;
}

void UpdaterTest::doesNothingAtAllForACopyThatNoPackageInstalled()
{
    QFETCH(UpdateSupport, support);
    m_bench->engine.setSupport(support);
    Updater &updater = m_bench->launch();
    QVERIFY(!updater.canCheckForUpdates());
    QVERIFY(!updater.automaticallyChecksForUpdates());
    updater.setAutomaticallyChecksForUpdates(true);
    updater.setAutomaticallyDownloadsUpdates(true);
    updater.checkForUpdates();
    updater.look();
    QVERIFY(!updater.timer().isActive());
    QVERIFY(m_bench->engine.checks.isEmpty());
    QVERIFY(m_bench->store.writes.isEmpty());
    QCOMPARE(m_bench->network.asked, 0);
    QCOMPARE(updater.session().stage(), Stage::idle);
}

void UpdaterTest::restsWhileTheSystemHasNoPackageService()
{
    Updater &updater = m_bench->launch();
    m_bench->engine.setSupport(UpdateSupport::noService);
    QVERIFY(!updater.canCheckForUpdates());
    updater.checkForUpdates();
    QVERIFY(m_bench->engine.checks.isEmpty());
    updater.refreshSupport();
    QCOMPARE(m_bench->engine.refreshes, 1);
    m_bench->engine.setSupport(UpdateSupport::full);
    QVERIFY(updater.canCheckForUpdates());
}

void UpdaterTest::looksNoMoreOnceItIsKnownThatNoPackageOwnsTheProgram()
{
    m_bench->launch().look();
    m_bench->engine.setSupport(UpdateSupport::notPackaged);
    QVERIFY(!m_bench->updater->timer().isActive());
}

void UpdaterTest::tellsOfAnOfferByANotification()
{
    m_bench->launch().look();
    Q_EMIT m_bench->engine.checked(someRelease());
    QCOMPARE(m_bench->notice.titles, QStringList { u"Ferrin 1.3.0 is available"_s });
    int shown = 0;
    connect(&m_bench->updater->session(), &UpdateSession::presentationRequested, [&] { ++shown; });
    QVERIFY(m_bench->notice.press);
    const auto press = m_bench->notice.press;
    press();
    QCOMPARE(shown, 1);
    QVERIFY(!m_bench->notice.press);
    m_bench->log.ignoreRest();
}

void UpdaterTest::tellsOfAnUnseenOfferOnce()
{
    Updater &updater = m_bench->launch();
    for (int day = 0; day < 3; ++day) {
        updater.look();
        Q_EMIT m_bench->engine.checked(someRelease());
        m_bench->now = m_bench->now.addDays(1);
    }
    QCOMPARE(m_bench->engine.checks.size(), 3);
    QCOMPARE(m_bench->notice.titles.size(), 1);
    // The user looked, and wants to be told again.
    m_bench->updater->session().present();
    m_bench->updater->session().later();
    m_bench->updater->look();
    Q_EMIT m_bench->engine.checked(someRelease());
    QCOMPARE(m_bench->notice.titles.size(), 2);
    m_bench->log.ignoreRest();
}

void UpdaterTest::withdrawsTheNotificationOfWhatIsInstalledByNow()
{
    m_bench->launch().look();
    Q_EMIT m_bench->engine.checked(someRelease());
    m_bench->now = m_bench->now.addDays(1);
    m_bench->updater->look();
    Q_EMIT m_bench->engine.checked(std::nullopt);
    QVERIFY(!m_bench->notice.press);
    m_bench->log.ignoreRest();
}

void UpdaterTest::isStartedByItsController()
{
    AppUpdater app(m_bench->parts());
    QVERIFY(app.controller()->updater()->timer().isActive());
}

FERRIN_TEST(QCoreApplication, UpdaterTest)
#include "test_updater.moc"
