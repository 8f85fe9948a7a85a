// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/testmain.h"
#include "tests/updates/sessionbench.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using Stage = UpdateSession::Stage;

class UpdateSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup()
    {
        m_bench->log.ignoreRest();
        m_bench.reset();
    }

    void checksInTheUsersName();
    void isShownFromItsBeginning();
    void saysThatFerrinIsUpToDate();
    void offersANewerRelease();
    void downloadsWhatIsOffered();
    void installsWhatIsDownloaded();
    void tellsAFailureInPlainWords();
    void triesTheStepAgainThatFailed();
    void checksAgainWhenTheOfferIsGone();
    void cancelsACheck();
    void cancelsADownloadAndKeepsTheOffer();
    void cancelsAnInstallationOnlyWhereThatIsSafe();
    void installsOnWhenTheUserLooksAway();
    void endsAllElseWhenTheUserLooksAway();
    void ignoresWhatMakesNoSenseNow_data();
    void ignoresWhatMakesNoSenseNow();
    void forgetsTheOldOfferWhenItBeginsAnew();
    void tellsBindingsOfEachStage();

private:
    std::optional<SessionBench> m_bench;
};

void UpdateSessionTest::checksInTheUsersName()
{
    m_bench->session.begin();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    QCOMPARE(m_bench->engine.checks, QList { UpdateManner::interactive });
}

void UpdateSessionTest::isShownFromItsBeginning()
{
    m_bench->session.begin();
    QCOMPARE(m_bench->shown, 1);
}

void UpdateSessionTest::saysThatFerrinIsUpToDate()
{
    m_bench->session.begin();
    m_bench->findNothing();
    QCOMPARE(m_bench->session.stage(), Stage::upToDate);
    QCOMPARE(m_bench->log.take(), QStringList { u"info: Ferrin is up to date"_s });
    m_bench->session.later();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
}

void UpdateSessionTest::offersANewerRelease()
{
    m_bench->session.begin();
    m_bench->offer();
    QCOMPARE(m_bench->session.stage(), Stage::available);
    QCOMPARE(m_bench->session.release(), m_bench->release);
    QCOMPARE(m_bench->log.take(), QStringList { u"info: Version 1.3.0 is available"_s });
    QVERIFY(m_bench->engine.downloads.isEmpty());
    QCOMPARE(m_bench->offers, 0);
}

void UpdateSessionTest::downloadsWhatIsOffered()
{
    m_bench->session.begin();
    m_bench->offer();
    m_bench->session.download();
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    QCOMPARE(m_bench->engine.downloads, QList { m_bench->release });
    const UpdateProgress half { UpdateActivity::downloading, 0.5, true };
    Q_EMIT m_bench->engine.progressed(half);
    QCOMPARE(m_bench->session.progress(), half);
    Q_EMIT m_bench->engine.downloaded();
    QCOMPARE(m_bench->session.stage(), Stage::readyToInstall);
    QVERIFY(m_bench->engine.installations.isEmpty());
}

void UpdateSessionTest::installsWhatIsDownloaded()
{
    m_bench->becomeReady();
    m_bench->session.install();
    QCOMPARE(m_bench->session.stage(), Stage::installing);
    QCOMPARE(m_bench->session.progress(), UpdateProgress());
    QCOMPARE(m_bench->engine.installations, QList { m_bench->release });
    Q_EMIT m_bench->engine.installed();
    QCOMPARE(m_bench->session.stage(), Stage::installed);
    QCOMPARE(
        m_bench->log.take(),
        QStringList({ u"info: Version 1.3.0 is available"_s, u"info: Version 1.3.0 is downloaded"_s,
                      u"info: Version 1.3.0 is installed"_s }));
    m_bench->session.later();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
}

void UpdateSessionTest::tellsAFailureInPlainWords()
{
    m_bench->session.begin();
    m_bench->fail(UpdateFailure::notTrusted);
    QCOMPARE(m_bench->session.stage(), Stage::failed);
    QCOMPARE(m_bench->session.failure(), plainWords(UpdateFailure::notTrusted));
    QCOMPARE(m_bench->session.trouble(), QString());
    QCOMPARE(m_bench->log.take(),
             QStringList { u"error: The update failed (notTrusted): for a reason"_s });
    m_bench->session.later();
    QCOMPARE(m_bench->session.failure(), QString());
}

void UpdateSessionTest::triesTheStepAgainThatFailed()
{
    m_bench->session.begin();
    m_bench->fail(UpdateFailure::unreachable);
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    QCOMPARE(m_bench->session.failure(), QString());

    m_bench->offer();
    m_bench->session.download();
    m_bench->fail(UpdateFailure::unreachable);
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    QCOMPARE(m_bench->engine.downloads.size(), 2);

    Q_EMIT m_bench->engine.downloaded();
    m_bench->session.install();
    m_bench->fail(UpdateFailure::notAuthorized);
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::installing);
    QCOMPARE(m_bench->engine.installations.size(), 2);
    QCOMPARE(m_bench->engine.checks.size(), 2);
}

void UpdateSessionTest::checksAgainWhenTheOfferIsGone()
{
    m_bench->beginInstalling();
    m_bench->fail(UpdateFailure::nothingDone);
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    QCOMPARE(m_bench->engine.installations.size(), 1);
}

void UpdateSessionTest::cancelsACheck()
{
    m_bench->session.begin();
    m_bench->session.cancel();
    QCOMPARE(m_bench->engine.cancels, 1);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
}

void UpdateSessionTest::cancelsADownloadAndKeepsTheOffer()
{
    m_bench->session.begin();
    m_bench->offer();
    m_bench->session.download();
    m_bench->session.cancel();
    QCOMPARE(m_bench->engine.cancels, 1);
    QCOMPARE(m_bench->session.stage(), Stage::available);
    m_bench->session.download();
    QCOMPARE(m_bench->engine.downloads.size(), 2);
}

void UpdateSessionTest::cancelsAnInstallationOnlyWhereThatIsSafe()
{
    m_bench->beginInstalling();
    Q_EMIT m_bench->engine.progressed({ UpdateActivity::installing, 0.2, false });
    m_bench->session.cancel();
    QCOMPARE(m_bench->engine.cancels, 0);
    QCOMPARE(m_bench->session.stage(), Stage::installing);
    Q_EMIT m_bench->engine.progressed({ UpdateActivity::waiting, std::nullopt, true });
    m_bench->session.cancel();
    QCOMPARE(m_bench->engine.cancels, 1);
    QCOMPARE(m_bench->session.stage(), Stage::readyToInstall);
}

void UpdateSessionTest::installsOnWhenTheUserLooksAway()
{
    m_bench->beginInstalling();
    m_bench->session.dismiss();
    QCOMPARE(m_bench->engine.cancels, 0);
    QCOMPARE(m_bench->session.stage(), Stage::installing);
    m_bench->session.present();
    QCOMPARE(m_bench->shown, 2);
    m_bench->session.dismiss();
    m_bench->fail(UpdateFailure::setupFailed);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    QCOMPARE(m_bench->session.trouble(), plainWords(UpdateFailure::setupFailed));
    QCOMPARE(m_bench->shown, 2);
}

void UpdateSessionTest::endsAllElseWhenTheUserLooksAway()
{
    m_bench->session.begin();
    m_bench->session.dismiss();
    QCOMPARE(m_bench->engine.cancels, 1);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    m_bench->becomeReady();
    m_bench->session.dismiss();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    QCOMPARE(m_bench->engine.cancels, 1);
}

void UpdateSessionTest::ignoresWhatMakesNoSenseNow_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::newRow("idle") << Stage::idle;
    QTest::newRow("checking") << Stage::checking;
    QTest::newRow("up to date") << Stage::upToDate;
    QTest::newRow("failed") << Stage::failed;
    QTest::newRow("installing") << Stage::installing;
}

void UpdateSessionTest::ignoresWhatMakesNoSenseNow()
{
    QFETCH(Stage, stage);
    if (stage == Stage::installing)
        m_bench->beginInstalling();
    else if (stage != Stage::idle)
        m_bench->session.begin();
    if (stage == Stage::upToDate)
        m_bench->findNothing();
    if (stage == Stage::failed)
        m_bench->fail(UpdateFailure::tooSlow);
    const auto downloads = m_bench->engine.downloads.size();
    const auto installations = m_bench->engine.installations.size();

    m_bench->session.download();
    m_bench->session.install();
    m_bench->session.skipThisVersion();
    if (stage != Stage::failed)
        m_bench->session.tryAgain();
    if (stage == Stage::checking || stage == Stage::installing)
        m_bench->session.later();
    else
        m_bench->session.cancel();
    QCOMPARE(m_bench->session.stage(), stage);
    QCOMPARE(m_bench->engine.downloads.size(), downloads);
    QCOMPARE(m_bench->engine.installations.size(), installations);
    QCOMPARE(m_bench->records.skippedVersion(), QString());
}

void UpdateSessionTest::forgetsTheOldOfferWhenItBeginsAnew()
{
    m_bench->becomeReady();
    m_bench->session.begin();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    QVERIFY(!m_bench->session.release());
    m_bench->session.install();
    QVERIFY(m_bench->engine.installations.isEmpty());
}

void UpdateSessionTest::tellsBindingsOfEachStage()
{
    QList<Stage> stages;
    const auto handler = m_bench->session.bindableStage().addNotifier(
        [&] { stages.append(m_bench->session.stage()); });
    m_bench->beginInstalling();
    Q_EMIT m_bench->engine.installed();
    m_bench->session.later();
    QCOMPARE(stages,
             QList({ Stage::checking, Stage::available, Stage::downloading, Stage::readyToInstall,
                     Stage::installing, Stage::installed, Stage::idle }));
}

FERRIN_TEST(QCoreApplication, UpdateSessionTest)
#include "test_updatesession.moc"
