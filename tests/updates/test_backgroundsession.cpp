// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/testmain.h"
#include "tests/updates/sessionbench.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using Stage = UpdateSession::Stage;

/// Sessions that nobody asked for.
class BackgroundSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup()
    {
        m_bench->log.ignoreRest();
        m_bench.reset();
    }

    void asksTheUserNothing()
    {
        m_bench->session.beginInBackground(false);
        QCOMPARE(m_bench->engine.checks, QList { UpdateManner::background });
    }

    void offersWithoutAWindow()
    {
        m_bench->session.beginInBackground(false);
        QCOMPARE(m_bench->offers, 0);
        m_bench->offer();
        QCOMPARE(m_bench->offers, 1);
        QCOMPARE(m_bench->shown, 0);
        QCOMPARE(m_bench->session.stage(), Stage::available);
        m_bench->session.present();
        QCOMPARE(m_bench->shown, 1);
        QVERIFY(!m_bench->session.isBackground());
    }

    void offersAgainWhenItHasDownloadedByItself()
    {
        m_bench->session.beginInBackground(true);
        m_bench->offer();
        QCOMPARE(m_bench->session.stage(), Stage::downloading);
        QCOMPARE(m_bench->offers, 0);
        Q_EMIT m_bench->engine.downloaded();
        QCOMPARE(m_bench->session.stage(), Stage::readyToInstall);
        QCOMPARE(m_bench->offers, 1);
        QCOMPARE(m_bench->shown, 0);
        QVERIFY(m_bench->engine.installations.isEmpty());
    }

    void skipsAVersionForBackgroundSessionsAlone()
    {
        m_bench->session.beginInBackground(false);
        m_bench->offer();
        m_bench->session.skipThisVersion();
        QCOMPARE(m_bench->session.stage(), Stage::idle);

        m_bench->session.beginInBackground(true);
        m_bench->offer();
        QCOMPARE(m_bench->session.stage(), Stage::idle);
        QVERIFY(m_bench->engine.downloads.isEmpty());
        QCOMPARE(m_bench->offers, 1);

        Release next = m_bench->release;
        next.version = u"1.3.1"_s;
        m_bench->session.beginInBackground(false);
        Q_EMIT m_bench->engine.checked(next);
        QCOMPARE(m_bench->offers, 2);

        m_bench->session.begin();
        m_bench->offer();
        QCOMPARE(m_bench->session.stage(), Stage::available);
    }

    void offersTheSameAgainLater()
    {
        m_bench->session.beginInBackground(false);
        m_bench->offer();
        m_bench->session.present();
        m_bench->session.later();
        QCOMPARE(m_bench->session.stage(), Stage::idle);
        m_bench->session.beginInBackground(false);
        m_bench->offer();
        QCOMPARE(m_bench->offers, 2);
    }

    void looksAgainWhileItsOfferIsUnseen()
    {
        m_bench->session.beginInBackground(false);
        m_bench->offer();
        m_bench->session.beginInBackground(false);
        QCOMPARE(m_bench->engine.checks.size(), 2);
        m_bench->findNothing();
        QCOMPARE(m_bench->session.stage(), Stage::idle);
    }

    void leavesAnOfferAloneThatTheUserSees()
    {
        m_bench->session.begin();
        m_bench->offer();
        m_bench->session.beginInBackground(true);
        QCOMPARE(m_bench->session.stage(), Stage::available);
        QCOMPARE(m_bench->engine.checks.size(), 1);
    }

    void keepsItsTroubleUntilACheckSucceeds()
    {
        m_bench->session.beginInBackground(true);
        m_bench->fail(UpdateFailure::notTrusted);
        QCOMPARE(m_bench->session.stage(), Stage::idle);
        QCOMPARE(m_bench->session.trouble(), plainWords(UpdateFailure::notTrusted));
        QCOMPARE(m_bench->shown, 0);
        m_bench->session.begin();
        QCOMPARE(m_bench->session.trouble(), plainWords(UpdateFailure::notTrusted));
        m_bench->findNothing();
        QCOMPARE(m_bench->session.trouble(), QString());
    }

    void isNoTroubleWhenFerrinIsUpToDate()
    {
        m_bench->session.beginInBackground(true);
        m_bench->findNothing();
        QCOMPARE(m_bench->session.stage(), Stage::idle);
        QCOMPARE(m_bench->offers, 0);
        QCOMPARE(m_bench->session.trouble(), QString());
    }

    void becomesOneThatIsShown()
    {
        m_bench->session.beginInBackground(true);
        m_bench->offer();
        m_bench->session.begin();
        QCOMPARE(m_bench->shown, 1);
        QCOMPARE(m_bench->session.stage(), Stage::downloading);
        QCOMPARE(m_bench->engine.checks.size(), 1);
        m_bench->fail(UpdateFailure::unreachable);
        QCOMPARE(m_bench->session.stage(), Stage::failed);
    }

    void showsItsBeginningWhenThereIsNothingElseToShow()
    {
        m_bench->session.present();
        QCOMPARE(m_bench->session.stage(), Stage::checking);
        QCOMPARE(m_bench->shown, 1);
    }

private:
    std::optional<SessionBench> m_bench;
};

FERRIN_TEST(QCoreApplication, BackgroundSessionTest)
#include "test_backgroundsession.moc"
