// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/logcapture.h"
#include "tests/updates/networkbench.h"

#include <QTcpServer>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Checks against a real server, with everything that a server or somebody on the way may do.
class TestFeedCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void findsANewerRelease();
    void saysNothingOfItselfButItsName();
    void followsARedirectToEncryptedAddresses();
    void refusesAnAddressWithoutEncryption();
    void refusesARedirectToPlainHttp();
    void refusesARedirectToAFile();
    void refusesAChainOfRedirectsWithoutEnd();
    void refusesACertificateForAnotherName();
    void refusesACertificateOfAnUnknownAuthority();
    void refusesAFeedWithoutSignature();
    void refusesAFeedOfAnotherKey();
    void refusesAFeedThatWasChangedByOneByte();
    void offersNothingOlderOrEqual();
    void refusesAReplayedOlderFeed();
    void refusesAnExpiredFeed();
    void refusesAPackageNameWithAPath();
    void refusesAFeedThatIsTooLong();
    void refusesAFeedThatAnnouncesTooMuch();
    void refusesABodyThatNeverEnds();
    void refusesABodyThatTrickles();
    void refusesABodyThatNeverBegins();
    void endsAfterItsTimeWhateverComes();
    void refusesAFeedThatWasCutShort();
    void tellsOfAServerThatIsNotThere();
    void tellsOfAServerWithoutTheFeed();
    void fallsSilentWhenItIsCancelled();

private:
    [[nodiscard]] QString failure() { return failureOf(m_bench->check()); }
    /// Serves a feed that is signed with our key and has something else in this place.
    void serve(const QString &key, const QJsonValue &value)
    {
        QJsonObject feed = goodFeed(m_bench->package);
        feed.insert(key, value);
        m_bench->server.files.insert("/feed", signedJson(feed, m_bench->key));
    }
    void answerFeedWith(const HttpsServer::Answer &answer)
    {
        m_bench->server.answers.insert("/feed", [answer](const auto &) { return answer; });
    }
    void redirectFeedTo(const QByteArray &address)
    {
        answerFeedWith({ .status = 302, .headers = { "Location: " + address } });
    }

    std::optional<NetworkBench> m_bench;
};

void TestFeedCheck::findsANewerRelease()
{
    const auto answer = m_bench->check();
    QVERIFY(answer && std::holds_alternative<UpdateOffer>(*answer));
    const auto &offer = std::get<UpdateOffer>(*answer);
    QCOMPARE(offer.issued, QDateTime(QDate(2026, 4, 30), QTime(10, 0), Qt::UTC));
    QVERIFY(offer.release);
    QCOMPARE(*offer.release,
             (Release { u"1.3.0"_s, QDate(2026, 4, 30), u"- **Quieter**, and _prettier_.\n"_s,
                        m_bench->package }));
}

void TestFeedCheck::saysNothingOfItselfButItsName()
{
    QVERIFY(m_bench->check());
    QCOMPARE(m_bench->server.requests.size(), 1);
    const auto &headers = m_bench->server.requests.first().headers;
    QVERIFY(headers.value("user-agent").startsWith("Ferrin/"));
    QVERIFY(!headers.contains("cookie"));
    QVERIFY(!headers.contains("authorization"));
    QVERIFY(!headers.contains("referer"));
}

void TestFeedCheck::followsARedirectToEncryptedAddresses()
{
    m_bench->server.files.insert("/moved", m_bench->server.files.value("/feed"));
    redirectFeedTo(m_bench->server.url(u"moved"_s).toEncoded());
    const auto answer = m_bench->check();
    QVERIFY(answer && std::holds_alternative<UpdateOffer>(*answer));
}

void TestFeedCheck::refusesAnAddressWithoutEncryption()
{
    QTcpServer plain;
    QVERIFY(plain.listen(QHostAddress::LocalHost));
    const QUrl address(u"http://127.0.0.1:%1/feed"_s.arg(plain.serverPort()));
    QCOMPARE(failureOf(m_bench->check(checkOf(address, m_bench->key))), u"notEncrypted"_s);
    QVERIFY(!plain.hasPendingConnections());
}

void TestFeedCheck::refusesARedirectToPlainHttp()
{
    QTcpServer plain;
    QVERIFY(plain.listen(QHostAddress::LocalHost));
    redirectFeedTo("http://127.0.0.1:" + QByteArray::number(plain.serverPort()) + "/feed");
    QCOMPARE(failure(), u"notEncrypted"_s);
    QVERIFY(!plain.hasPendingConnections());
}

void TestFeedCheck::refusesARedirectToAFile()
{
    redirectFeedTo("file:///etc/hostname");
    QCOMPARE(failure(), u"notEncrypted"_s);
}

void TestFeedCheck::refusesAChainOfRedirectsWithoutEnd()
{
    redirectFeedTo(m_bench->server.url(u"feed"_s).toEncoded());
    QCOMPARE(failure(), u"serverTrouble"_s);
    QCOMPARE(m_bench->server.requests.size(), 6);
}

void TestFeedCheck::refusesACertificateForAnotherName()
{
    HttpsServer other(m_bench->authority.serverFor(u"DNS:updates.example.org"_s));
    other.files = m_bench->server.files;
    QCOMPARE(failureOf(m_bench->check(checkOf(other.url(u"feed"_s), m_bench->key))),
             u"notTheServer"_s);
    QVERIFY(other.requests.isEmpty());
}

void TestFeedCheck::refusesACertificateOfAnUnknownAuthority()
{
    const Authority stranger;
    HttpsServer other(stranger.serverFor(u"IP:127.0.0.1"_s));
    other.files = m_bench->server.files;
    QCOMPARE(failureOf(m_bench->check(checkOf(other.url(u"feed"_s), m_bench->key))),
             u"notTheServer"_s);
    QVERIFY(other.requests.isEmpty());
}

void TestFeedCheck::refusesAFeedWithoutSignature()
{
    const QByteArray text = QJsonDocument(goodFeed(m_bench->package)).toJson();
    for (const QByteArray &feed : { text, "ferrin-feed-1 \n" + text, "\n" + text, ""_ba }) {
        m_bench->server.files.insert("/feed", feed);
        QCOMPARE(failure(), u"badSignature"_s);
    }
}

void TestFeedCheck::refusesAFeedOfAnotherKey()
{
    m_bench->server.files.insert("/feed", signedJson(goodFeed(m_bench->package), newSigningKey()));
    QCOMPARE(failure(), u"badSignature"_s);
}

void TestFeedCheck::refusesAFeedThatWasChangedByOneByte()
{
    const QByteArray feed = m_bench->server.files.value("/feed");
    // Its mark, its signature, its text, and the very last byte.
    for (const qsizetype at : { qsizetype(0), qsizetype(40), feed.size() / 2, feed.size() - 1 }) {
        QByteArray changed = feed;
        changed[at] = static_cast<char>(changed.at(at) ^ 1);
        m_bench->server.files.insert("/feed", changed);
        QCOMPARE(failure(), u"badSignature"_s);
    }
}

void TestFeedCheck::offersNothingOlderOrEqual()
{
    for (const QString &version : { u"1.2.9"_s, u"1.2.9.0"_s, u"1.2.8"_s, u"1.1.99"_s, u"0.9"_s }) {
        serve(u"version"_s, version);
        const auto answer = m_bench->check();
        QVERIFY(answer && std::holds_alternative<UpdateOffer>(*answer));
        QVERIFY2(!std::get<UpdateOffer>(*answer).release, qPrintable(version));
    }
}

void TestFeedCheck::refusesAReplayedOlderFeed()
{
    UpdateCheck check = checkOf(m_bench->server.url(u"feed"_s), m_bench->key);
    const auto first = m_bench->check(check);
    QVERIFY(first && std::holds_alternative<UpdateOffer>(*first));
    check.newestIssued = std::get<UpdateOffer>(*first).issued;
    serve(u"issued"_s, check.newestIssued->addSecs(-1).toString(Qt::ISODate));
    QCOMPARE(failureOf(m_bench->check(check)), u"replayed"_s);
}

void TestFeedCheck::refusesAnExpiredFeed()
{
    serve(u"expires"_s, readingTime.toString(Qt::ISODate));
    QCOMPARE(failure(), u"notCurrent"_s);
}

void TestFeedCheck::refusesAPackageNameWithAPath()
{
    for (const QString &name :
         { u"../ferrin_1.3.0_amd64.deb"_s, u"/etc/ferrin_1.3.0_amd64.deb"_s,
           u"https://example.org/ferrin.deb"_s, u"a/ferrin.deb"_s, u"..%2Fferrin.deb"_s }) {
        m_bench->package.file = name;
        m_bench->server.files.insert("/feed", signedJson(goodFeed(m_bench->package), m_bench->key));
        QCOMPARE(failure(), u"badFeed"_s);
    }
}

void TestFeedCheck::refusesAFeedThatIsTooLong()
{
    m_bench->policy.feed.maximumLength = m_bench->server.files.value("/feed").size() - 1;
    answerFeedWith({ .body = m_bench->server.files.value("/feed"), .length = -1 });
    QCOMPARE(failure(), u"tooLarge"_s);
}

void TestFeedCheck::refusesAFeedThatAnnouncesTooMuch()
{
    answerFeedWith({ .body = "{",
                     .manner = HttpsServer::Manner::stalled,
                     .count = 1,
                     .length = m_bench->policy.feed.maximumLength + 1 });
    QCOMPARE(failure(), u"tooLarge"_s);
}

void TestFeedCheck::refusesABodyThatNeverEnds()
{
    answerFeedWith(
        { .body = QByteArray(4096, '.'), .manner = HttpsServer::Manner::endless, .length = -1 });
    QCOMPARE(failure(), u"tooLarge"_s);
}

void TestFeedCheck::refusesABodyThatTrickles()
{
    m_bench->policy.feed.span = 500ms;
    m_bench->policy.feed.leastProgress = 10'000;
    answerFeedWith({ .manner = HttpsServer::Manner::trickling, .length = -1 });
    QCOMPARE(failure(), u"tooSlow"_s);
}

void TestFeedCheck::refusesABodyThatNeverBegins()
{
    m_bench->policy.feed.span = 500ms;
    answerFeedWith({ .body = ".", .manner = HttpsServer::Manner::stalled, .count = 0 });
    QCOMPARE(failure(), u"tooSlow"_s);
}

void TestFeedCheck::endsAfterItsTimeWhateverComes()
{
    m_bench->policy.feed.totalTime = 500ms;
    m_bench->policy.feed.leastProgress = 0;
    answerFeedWith({ .manner = HttpsServer::Manner::trickling, .length = -1 });
    QCOMPARE(failure(), u"tooSlow"_s);
}

void TestFeedCheck::refusesAFeedThatWasCutShort()
{
    const QByteArray feed = m_bench->server.files.value("/feed");
    answerFeedWith(
        { .body = feed, .manner = HttpsServer::Manner::cutShort, .count = feed.size() / 2 });
    QCOMPARE(failure(), u"noConnection"_s);
    answerFeedWith({ .body = feed,
                     .manner = HttpsServer::Manner::cutShort,
                     .count = feed.size() / 2,
                     .length = -1 });
    QCOMPARE(failure(), u"badSignature"_s);
}

void TestFeedCheck::tellsOfAServerThatIsNotThere()
{
    QTcpServer gone;
    QVERIFY(gone.listen(QHostAddress::LocalHost));
    const QUrl address(u"https://127.0.0.1:%1/feed"_s.arg(gone.serverPort()));
    gone.close();
    QCOMPARE(failureOf(m_bench->check(checkOf(address, m_bench->key))), u"noConnection"_s);
}

void TestFeedCheck::tellsOfAServerWithoutTheFeed()
{
    m_bench->server.files.clear();
    QCOMPARE(failure(), u"serverTrouble"_s);
    answerFeedWith({ .status = 500, .body = "Oh dear" });
    QCOMPARE(failure(), u"serverTrouble"_s);
    answerFeedWith({ .status = 204 });
    QCOMPARE(failure(), u"serverTrouble"_s);
    answerFeedWith({ .status = 206, .body = "part", .headers = { "Content-Range: bytes 5-8/9" } });
    QCOMPARE(failure(), u"serverTrouble"_s);
}

void TestFeedCheck::fallsSilentWhenItIsCancelled()
{
    m_bench->engine().check(checkOf(m_bench->server.url(u"feed"_s), m_bench->key));
    m_bench->engine().cancel();
    QVERIFY(m_bench->check());
    QVERIFY(m_bench->answers.isEmpty());
}

QTEST_GUILESS_MAIN(TestFeedCheck)
#include "test_feedcheck.moc"
