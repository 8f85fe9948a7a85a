// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/testfeed.h"
#include "updates/network/feedjudgement.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class TestFeedJudgement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void offersANewerRelease();
    void offersNothingWhenTheInstalledVersionIsEqual();
    void offersNothingWhenTheInstalledVersionIsNewer();
    void offersNothingToAVersionThatIsNoNumber();
    void refusesAnExpiredFeed();
    void refusesAFeedOfTheFuture();
    void bearsWithAClockThatIsALittleBehind();
    void refusesAReplayedOlderFeed();
    void takesTheFeedOfTheLastTimeAgain();
    void refusesAReplayedFeedEvenIfItOffersNothing();
    void refusesASignedTextThatIsNoFeed();
    void saysWhenThereIsNoPackageForThisMachine();
    void doesNotMindAMissingPackageOfAVersionThatItDoesNotNeed();

private:
    [[nodiscard]] std::optional<UpdateOffer> offer() const
    {
        const auto judged = judge();
        const auto *const found = std::get_if<UpdateOffer>(&judged);
        return found ? std::optional(*found) : std::nullopt;
    }
    [[nodiscard]] std::optional<UpdateTrouble> trouble() const
    {
        const auto judged = judge();
        const auto *const found = std::get_if<UpdateTrouble>(&judged);
        return found ? std::optional(*found) : std::nullopt;
    }
    [[nodiscard]] std::variant<UpdateOffer, UpdateTrouble> judge() const
    {
        return judgeFeed(signedJson(m_feed, m_key), m_check, m_now);
    }

    const SigningKey m_key = newSigningKey();
    const Package m_package = packageOf("package", u"ferrin_1.3.0_amd64.deb"_s);
    QJsonObject m_feed;
    UpdateCheck m_check;
    QDateTime m_now;
};

void TestFeedJudgement::init()
{
    m_feed = goodFeed(m_package);
    m_check = checkOf(QUrl(u"https://example.org/feed"_s), m_key);
    m_now = readingTime;
}

void TestFeedJudgement::offersANewerRelease()
{
    QVERIFY(offer() && offer()->release);
    QCOMPARE(offer()->release->version, u"1.3.0"_s);
    QCOMPARE(offer()->release->package, m_package);
    QCOMPARE(offer()->issued, QDateTime(QDate(2026, 4, 30), QTime(10, 0), Qt::UTC));
}

void TestFeedJudgement::offersNothingWhenTheInstalledVersionIsEqual()
{
    for (const QString &installed : { u"1.3.0"_s, u"1.3"_s }) {
        m_check.installedVersion = installed;
        QVERIFY(offer() && !offer()->release);
    }
}

void TestFeedJudgement::offersNothingWhenTheInstalledVersionIsNewer()
{
    for (const QString &installed : { u"1.3.1"_s, u"1.10"_s, u"2"_s }) {
        m_check.installedVersion = installed;
        QVERIFY(offer() && !offer()->release);
    }
}

void TestFeedJudgement::offersNothingToAVersionThatIsNoNumber()
{
    m_check.installedVersion = u"1.2.9-mine"_s;
    QVERIFY(offer() && !offer()->release);
}

void TestFeedJudgement::refusesAnExpiredFeed()
{
    m_now = QDateTime(QDate(2026, 7, 29), QTime(10, 0), Qt::UTC);
    QVERIFY(trouble());
    QCOMPARE(*trouble(),
             (UpdateTrouble { UpdateFailure::notCurrent,
                              u"the feed expired at 2026-07-29T10:00:00Z"_s }));
    m_now = m_now.addSecs(-1);
    QVERIFY(offer());
}

void TestFeedJudgement::refusesAFeedOfTheFuture()
{
    m_now = QDateTime(QDate(2026, 4, 29), QTime(9, 59, 59), Qt::UTC);
    QVERIFY(trouble());
    QCOMPARE(trouble()->failure, UpdateFailure::notCurrent);
}

void TestFeedJudgement::bearsWithAClockThatIsALittleBehind()
{
    m_now = QDateTime(QDate(2026, 4, 29), QTime(10, 0), Qt::UTC);
    QVERIFY(offer());
}

void TestFeedJudgement::refusesAReplayedOlderFeed()
{
    m_check.newestIssued = QDateTime(QDate(2026, 4, 30), QTime(10, 0, 1), Qt::UTC);
    QVERIFY(trouble());
    QCOMPARE(*trouble(),
             (UpdateTrouble { UpdateFailure::replayed,
                              u"the feed is of 2026-04-30T10:00:00Z, and one of "
                              "2026-04-30T10:00:01Z was seen before"_s }));
}

void TestFeedJudgement::takesTheFeedOfTheLastTimeAgain()
{
    m_check.newestIssued = QDateTime(QDate(2026, 4, 30), QTime(10, 0), Qt::UTC);
    QVERIFY(offer());
}

void TestFeedJudgement::refusesAReplayedFeedEvenIfItOffersNothing()
{
    m_check.newestIssued = QDateTime(QDate(2026, 4, 30), QTime(11, 0), Qt::UTC);
    m_check.installedVersion = u"1.3.0"_s;
    QVERIFY(trouble());
    QCOMPARE(trouble()->failure, UpdateFailure::replayed);
}

void TestFeedJudgement::refusesASignedTextThatIsNoFeed()
{
    m_feed.remove(u"version"_s);
    QVERIFY(trouble());
    QCOMPARE(trouble()->failure, UpdateFailure::badFeed);
}

void TestFeedJudgement::saysWhenThereIsNoPackageForThisMachine()
{
    m_check.architecture = u"riscv64"_s;
    QVERIFY(trouble());
    QCOMPARE(*trouble(),
             (UpdateTrouble { UpdateFailure::noPackage,
                              u"version 1.3.0 has no package for \"riscv64\""_s }));
}

void TestFeedJudgement::doesNotMindAMissingPackageOfAVersionThatItDoesNotNeed()
{
    m_check.architecture = u"riscv64"_s;
    m_check.installedVersion = u"1.3.0"_s;
    QVERIFY(offer());
}

QTEST_GUILESS_MAIN(TestFeedJudgement)
#include "test_feedjudgement.moc"
