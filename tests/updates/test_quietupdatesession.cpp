// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/sessionbench.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using Stage = UpdateSession::Stage;

/// Sessions that nobody asked for.
class TestQuietUpdateSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void skipsAVersionForQuietSessionsAlone();
    void offersTheSameAgainLater();
    void isQuietWhenFerrinIsUpToDate();
    void isQuietAboutFailuresThatNobodyAskedFor();
    void speaksUpWithAnOffer();
    void speaksUpWhenItHasDownloadedByItself();
    void tellsOfFailuresOnceItWasShown();
    void turnsAQuietSessionIntoAShownOne();
    void leavesAnOfferAloneWhenItIsTimeForAQuietCheck();

private:
    std::optional<SessionBench> m_bench;
};

void TestQuietUpdateSession::skipsAVersionForQuietSessionsAlone()
{
    m_bench->session.beginQuietly(false);
    m_bench->offer();
    m_bench->session.skipThisVersion();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    QCOMPARE(m_bench->shown, 1);

    m_bench->session.beginQuietly(true);
    m_bench->offer();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    QVERIFY(m_bench->engine.downloads.isEmpty());
    QCOMPARE(m_bench->shown, 1);

    Release next = m_bench->release;
    next.version = u"1.3.1"_s;
    m_bench->session.beginQuietly(false);
    m_bench->offer(next);
    QCOMPARE(m_bench->session.stage(), Stage::available);
    m_bench->session.later();

    m_bench->session.begin();
    m_bench->offer();
    QCOMPARE(m_bench->session.stage(), Stage::available);
    m_bench->log.ignoreRest();
}

void TestQuietUpdateSession::offersTheSameAgainLater()
{
    m_bench->session.beginQuietly(false);
    m_bench->offer();
    m_bench->session.later();
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    m_bench->session.beginQuietly(false);
    m_bench->offer();
    QCOMPARE(m_bench->session.stage(), Stage::available);
    QCOMPARE(m_bench->shown, 2);
    m_bench->log.ignoreRest();
}

void TestQuietUpdateSession::isQuietWhenFerrinIsUpToDate()
{
    m_bench->session.beginQuietly(true);
    m_bench->offer(std::nullopt);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    QCOMPARE(m_bench->shown, 0);
    QCOMPARE(m_bench->log.take(), QStringList { u"info: Ferrin is up to date"_s });
}

void TestQuietUpdateSession::isQuietAboutFailuresThatNobodyAskedFor()
{
    m_bench->session.beginQuietly(true);
    m_bench->fail(UpdateFailure::noConnection);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    m_bench->session.beginQuietly(true);
    m_bench->offer();
    m_bench->fail(UpdateFailure::diskFull);
    QCOMPARE(m_bench->session.stage(), Stage::idle);
    QCOMPARE(m_bench->shown, 0);
    QCOMPARE(m_bench->log.take(),
             QStringList({ u"error: The update failed (noConnection): for a reason"_s,
                           u"info: Version 1.3.0 is available"_s,
                           u"error: The update failed (diskFull): for a reason"_s }));
}

void TestQuietUpdateSession::speaksUpWithAnOffer()
{
    m_bench->session.beginQuietly(false);
    QCOMPARE(m_bench->shown, 0);
    m_bench->offer();
    QCOMPARE(m_bench->shown, 1);
    QCOMPARE(m_bench->session.stage(), Stage::available);
    m_bench->log.ignoreRest();
}

void TestQuietUpdateSession::speaksUpWhenItHasDownloadedByItself()
{
    m_bench->session.beginQuietly(true);
    m_bench->offer();
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    QCOMPARE(m_bench->shown, 0);
    m_bench->finishDownload();
    QCOMPARE(m_bench->session.stage(), Stage::readyToInstall);
    QCOMPARE(m_bench->shown, 1);
    m_bench->log.ignoreRest();
}

void TestQuietUpdateSession::tellsOfFailuresOnceItWasShown()
{
    m_bench->session.beginQuietly(false);
    m_bench->offer();
    m_bench->session.download();
    m_bench->fail(UpdateFailure::tooSlow);
    QCOMPARE(m_bench->session.stage(), Stage::failed);
    m_bench->log.ignoreRest();
}

void TestQuietUpdateSession::turnsAQuietSessionIntoAShownOne()
{
    m_bench->session.beginQuietly(true);
    m_bench->offer();
    m_bench->session.begin();
    QCOMPARE(m_bench->shown, 1);
    QCOMPARE(m_bench->session.stage(), Stage::downloading);
    QCOMPARE(m_bench->engine.checks.size(), 1);
    m_bench->fail(UpdateFailure::noConnection);
    QCOMPARE(m_bench->session.stage(), Stage::failed);
    m_bench->log.ignoreRest();
}

void TestQuietUpdateSession::leavesAnOfferAloneWhenItIsTimeForAQuietCheck()
{
    m_bench->session.begin();
    m_bench->offer();
    m_bench->session.beginQuietly(true);
    QCOMPARE(m_bench->session.stage(), Stage::available);
    QCOMPARE(m_bench->engine.checks.size(), 1);
    m_bench->log.ignoreRest();
}

QTEST_GUILESS_MAIN(TestQuietUpdateSession)
#include "test_quietupdatesession.moc"
