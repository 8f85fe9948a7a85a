// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/sessionbench.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using Stage = UpdateSession::Stage;

class TestUpdateSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void asksTheEngineForTheFeed();
    void isShownFromItsBeginning();
    void saysThatFerrinIsUpToDate();
    void throwsAwayWhatIsInstalledByNow();
    void offersANewerRelease();
    void downloadsWhatIsOffered();
    void isReadyToInstallWhatWasVerified();
    void handsTheVerifiedPackageOver();
    void neverHandsOverAPackageThatHasChangedSince();
    void saysWhenNobodyInstalls();
    void tellsAFailureInPlainWords();
    void triesTheStepAgainThatFailed();
    void cancelsACheck();
    void cancelsADownloadAndKeepsTheOffer();
    void remembersTheNewestFeed();
    void ignoresWhatMakesNoSenseNow_data();
    void ignoresWhatMakesNoSenseNow();
    void forgetsTheOldOfferWhenItBeginsAnew();
    void tellsBindingsOfEachStage();

private:
    std::optional<SessionBench> m_bench;
};

void TestUpdateSession::asksTheEngineForTheFeed()
{
    QVERIFY(m_bench->engine.checks.isEmpty());
    m_bench->session.begin();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    const UpdateCheck expected { QUrl(u"https://example.org/feed"_s), QByteArray(32, 'k'),
                                 u"1.2.9"_s, u"amd64"_s, std::nullopt };
    QCOMPARE(m_bench->engine.checks, QList { expected });
}

void TestUpdateSession::isShownFromItsBeginning()
{
    m_bench->session.begin();
    QCOMPARE(m_bench->shown, 1);
}

void TestUpdateSession::saysThatFerrinIsUpToDate()
{
    m_bench->session.begin();
    m_bench->offer(std::nullopt);
    QCOMPARE(m_bench->session.stage(), Stage::upToDate);
    QCOMPARE(m_bench->log.take(), QStringList { u"info: Ferrin is up to date"_s });
    m_bench->session.later();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
}

void TestUpdateSession::throwsAwayWhatIsInstalledByNow()
{
    const QDir folder(m_bench->folder.path());
    for (const QString &name :
         { u"ferrin_1.3.0_amd64.deb"_s, u"ferrin_1.3.1_amd64.deb.part"_s, u"somebody's.txt"_s }) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    m_bench->session.begin();
    m_bench->offer();
    m_bench->session.later();
    QCOMPARE(folder.entryList(QDir::Files).size(), 3);
    m_bench->session.begin();
    m_bench->offer(std::nullopt);
    QCOMPARE(folder.entryList(QDir::Files), QStringList { u"somebody's.txt"_s });
    m_bench->log.ignoreRest();
}

void TestUpdateSession::offersANewerRelease()
{
    m_bench->session.begin();
    m_bench->offer();
    QCOMPARE(m_bench->session.stage(), Stage::available);
    QCOMPARE(m_bench->session.version(), u"1.3.0"_s);
    QCOMPARE(m_bench->session.notes(), u"- **Quieter**\n"_s);
    QCOMPARE(m_bench->session.release(), m_bench->release);
    QCOMPARE(m_bench->log.take(), QStringList { u"info: Version 1.3.0 is available"_s });
    QVERIFY(m_bench->engine.downloads.isEmpty());
}

void TestUpdateSession::downloadsWhatIsOffered()
{
    m_bench->session.begin();
    m_bench->offer();
    m_bench->session.download();
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    const PackageRequest expected { QUrl(u"https://example.org/feed"_s), m_bench->release.package,
                                    m_bench->folder.path() };
    QCOMPARE(m_bench->engine.downloads, QList { expected });
    QCOMPARE(m_bench->session.received(), 0);
    QCOMPARE(m_bench->session.total(), 5000);
    Q_EMIT m_bench->engine.progressed(1234, 5000);
    QCOMPARE(m_bench->session.received(), 1234);
    m_bench->log.ignoreRest();
}

void TestUpdateSession::isReadyToInstallWhatWasVerified()
{
    m_bench->becomeReady();
    QCOMPARE(m_bench->session.stage(), Stage::readyToInstall);
    QCOMPARE(m_bench->session.received(), 5000);
    QVERIFY(m_bench->installer.handedOver.isEmpty());
    QCOMPARE(m_bench->log.take(),
             QStringList({ u"info: Version 1.3.0 is available"_s,
                           u"info: Version 1.3.0 is downloaded and verified"_s }));
}

void TestUpdateSession::handsTheVerifiedPackageOver()
{
    m_bench->becomeReady();
    m_bench->session.install();
    QCOMPARE(m_bench->installer.handedOver, QStringList { m_bench->path });
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    m_bench->log.ignoreRest();
}

void TestUpdateSession::neverHandsOverAPackageThatHasChangedSince()
{
    m_bench->becomeReady();
    static_cast<void>(m_bench->log.take());
    QFile file(m_bench->path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(2500));
    QVERIFY(file.putChar(static_cast<char>(m_bench->bytes.at(2500) ^ 1)));
    file.close();

    m_bench->session.install();
    QVERIFY(m_bench->installer.handedOver.isEmpty());
    QCOMPARE(m_bench->session.stage(), Stage::failed);
    QCOMPARE(m_bench->session.failure(), plainWords(UpdateFailure::badPackage));
    QCOMPARE(
        m_bench->log.take(),
        QStringList { u"error: The update failed (badPackage): %1 has changed on the disk"_s.arg(
            m_bench->path) });
    // There is nothing to install any more, but something to fetch.
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    QCOMPARE(m_bench->engine.downloads.size(), 2);
}

void TestUpdateSession::saysWhenNobodyInstalls()
{
    m_bench->installer.isThere = false;
    m_bench->becomeReady();
    static_cast<void>(m_bench->log.take());
    m_bench->session.install();
    QCOMPARE(m_bench->session.failure(), plainWords(UpdateFailure::noInstaller));
    QCOMPARE(m_bench->log.take().size(), 1);

    m_bench->installer.isThere = true;
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->installer.handedOver, QStringList { m_bench->path });
    QCOMPARE(m_bench->session.stage(), Stage::idle);
}

void TestUpdateSession::tellsAFailureInPlainWords()
{
    m_bench->session.begin();
    m_bench->fail(UpdateFailure::badSignature);
    QCOMPARE(m_bench->session.stage(), Stage::failed);
    QCOMPARE(m_bench->session.failure(), plainWords(UpdateFailure::badSignature));
    QCOMPARE(m_bench->log.take(),
             QStringList { u"error: The update failed (badSignature): for a reason"_s });
    m_bench->session.later();
    QCOMPARE(m_bench->session.failure(), QString());
}

void TestUpdateSession::triesTheStepAgainThatFailed()
{
    m_bench->session.begin();
    m_bench->fail(UpdateFailure::noConnection);
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    QCOMPARE(m_bench->session.failure(), QString());
    QCOMPARE(m_bench->engine.checks.size(), 2);

    m_bench->offer();
    m_bench->session.download();
    m_bench->fail(UpdateFailure::noConnection);
    m_bench->session.tryAgain();
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    QCOMPARE(m_bench->engine.checks.size(), 2);
    QCOMPARE(m_bench->engine.downloads.size(), 2);
    m_bench->log.ignoreRest();
}

void TestUpdateSession::cancelsACheck()
{
    m_bench->session.begin();
    m_bench->session.cancel();
    QCOMPARE(m_bench->engine.cancels, 1);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
}

void TestUpdateSession::cancelsADownloadAndKeepsTheOffer()
{
    m_bench->session.begin();
    m_bench->offer();
    m_bench->session.download();
    m_bench->session.cancel();
    QCOMPARE(m_bench->engine.cancels, 1);
    QCOMPARE(m_bench->session.stage(), Stage::available);
    m_bench->session.download();
    QCOMPARE(m_bench->engine.downloads.size(), 2);
    m_bench->log.ignoreRest();
}

void TestUpdateSession::remembersTheNewestFeed()
{
    m_bench->session.begin();
    m_bench->offer(std::nullopt);
    QCOMPARE(m_bench->records.newestIssued(), readingTime);
    m_bench->session.begin();
    QCOMPARE(m_bench->engine.checks.last().newestIssued, readingTime);
    m_bench->log.ignoreRest();
}

void TestUpdateSession::ignoresWhatMakesNoSenseNow_data()
{
    QTest::addColumn<Stage>("stage");
    QTest::newRow("idle") << Stage::idle;
    QTest::newRow("checking") << Stage::checking;
    QTest::newRow("up to date") << Stage::upToDate;
    QTest::newRow("failed") << Stage::failed;
}

void TestUpdateSession::ignoresWhatMakesNoSenseNow()
{
    QFETCH(Stage, stage);
    if (stage != Stage::idle)
        m_bench->session.begin();
    if (stage == Stage::upToDate)
        m_bench->offer(std::nullopt);
    if (stage == Stage::failed)
        m_bench->fail(UpdateFailure::tooSlow);
    m_bench->log.ignoreRest();

    m_bench->session.download();
    m_bench->session.install();
    m_bench->session.skipThisVersion();
    if (stage != Stage::failed)
        m_bench->session.tryAgain();
    if (stage == Stage::checking)
        m_bench->session.later();
    else
        m_bench->session.cancel();
    QCOMPARE(m_bench->session.stage(), stage);
    QVERIFY(m_bench->engine.downloads.isEmpty());
    QVERIFY(m_bench->installer.handedOver.isEmpty());
    QCOMPARE(m_bench->records.skippedVersion(), QString());
}

void TestUpdateSession::forgetsTheOldOfferWhenItBeginsAnew()
{
    m_bench->becomeReady();
    m_bench->session.begin();
    QCOMPARE(m_bench->session.stage(), Stage::checking);
    QCOMPARE(m_bench->session.version(), QString());
    QVERIFY(!m_bench->session.release());
    m_bench->session.install();
    QVERIFY(m_bench->installer.handedOver.isEmpty());
    m_bench->log.ignoreRest();
}

void TestUpdateSession::tellsBindingsOfEachStage()
{
    QList<Stage> stages;
    const auto handler = m_bench->session.bindableStage().addNotifier(
        [&] { stages.append(m_bench->session.stage()); });
    m_bench->becomeReady();
    m_bench->session.install();
    QCOMPARE(stages,
             QList({ Stage::checking, Stage::available, Stage::downloading, Stage::readyToInstall,
                     Stage::idle }));
    m_bench->log.ignoreRest();
}

QTEST_GUILESS_MAIN(TestUpdateSession)
#include "test_updatesession.moc"
