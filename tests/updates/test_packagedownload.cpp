// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/updates/networkbench.h"

#include <QLockFile>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Downloads from a real server, with everything that a server or a disk may do.
class TestPackageDownload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void bringsThePackageToTheDisk();
    void keepsItsFolderToTheUser();
    void tellsHowFarItIs();
    void takesAPackageThatIsThereAlready();
    void refusesAPackageThatWasChangedByOneByte();
    void replacesAPackageThatWasChangedOnTheDisk();
    void refusesAPackageOfAnotherLength();
    void refusesAPackageThatIsLongerThanItSays();
    void refusesAPackageThatIsShorterThanTheFeedTells();
    void refusesAPackageThatNeverEnds();
    void refusesAPackageThatTrickles();
    void refusesARedirectToPlainHttp();
    void continuesWhatACutConnectionLeft();
    void takesAPartThatIsWholeAlready();
    void beginsAgainWhereThePartIsOfAnotherFile();
    void beginsAgainWhereTheServerKnowsNoParts();
    void beginsAgainWhereTheServerSendsAnotherPart();
    void beginsAgainOnlyOnce();
    void throwsAwayWhatIsNotItsOwn();
    void leavesADownloadOfAnotherSessionAlone();
    void tellsOfAFolderThatCannotBeMade();
    void keepsThePartWhenItIsCancelled();

private:
    void answerPackageWith(const HttpsServer::Answer &answer)
    {
        m_bench->server.answers.insert("/" + m_bench->package.file.toUtf8(),
                                       [answer](const auto &) { return answer; });
    }
    [[nodiscard]] QString failure() { return failureOf(m_bench->download()); }
    [[nodiscard]] QString part() const { return m_bench->package.file + u".part"_s; }
    /// The package came, and nothing beside it.
    [[nodiscard]] bool succeeds()
    {
        const auto answer = m_bench->download();
        const auto *const path = answer ? std::get_if<QString>(&*answer) : nullptr;
        return path && *path == m_bench->downloads() + u'/' + m_bench->package.file
            && m_bench->contents(m_bench->package.file) == m_bench->bytes
            && m_bench->downloaded() == QStringList { m_bench->package.file };
    }
    [[nodiscard]] QList<QByteArray> askedRanges() const
    {
        QList<QByteArray> ranges;
        for (const auto &request : m_bench->server.requests)
            ranges.append(request.headers.value("range"));
        return ranges;
    }

    std::optional<NetworkBench> m_bench;
};

void TestPackageDownload::bringsThePackageToTheDisk()
{
    QVERIFY(succeeds());
}

void TestPackageDownload::keepsItsFolderToTheUser()
{
    QVERIFY(succeeds());
    QCOMPARE(QFile::permissions(m_bench->downloads()) & QFile::Permissions(0x0077),
             QFile::Permissions());
}

void TestPackageDownload::tellsHowFarItIs()
{
    QList<std::pair<qint64, qint64>> progress;
    connect(&m_bench->engine(), &UpdateEngine::progressed, this,
            [&](qint64 received, qint64 total) {
                progress.append({ received, total });
            });
    QVERIFY(succeeds());
    QVERIFY(!progress.isEmpty());
    QVERIFY(std::ranges::is_sorted(progress));
    QCOMPARE(progress.last(), std::pair(m_bench->package.length, m_bench->package.length));
}

void TestPackageDownload::takesAPackageThatIsThereAlready()
{
    m_bench->write(m_bench->package.file, m_bench->bytes);
    QVERIFY(succeeds());
    QVERIFY(m_bench->server.requests.isEmpty());
}

void TestPackageDownload::refusesAPackageThatWasChangedByOneByte()
{
    for (const qsizetype at : { qsizetype(0), m_bench->bytes.size() - 1 }) {
        QByteArray changed = m_bench->bytes;
        changed[at] = static_cast<char>(changed.at(at) ^ 1);
        answerPackageWith({ .body = changed });
        QCOMPARE(failure(), u"badPackage"_s);
        QCOMPARE(m_bench->downloaded(), QStringList());
    }
}

void TestPackageDownload::replacesAPackageThatWasChangedOnTheDisk()
{
    m_bench->write(m_bench->package.file, QByteArray(m_bench->bytes.size(), '.'));
    QVERIFY(succeeds());
}

void TestPackageDownload::refusesAPackageOfAnotherLength()
{
    for (const qint64 more : { -1, 1 }) {
        answerPackageWith({ .body = m_bench->bytes,
                            .manner = HttpsServer::Manner::stalled,
                            .count = 1000,
                            .length = m_bench->bytes.size() + more });
        // One that announces more than there may be is refused before anything looks at it.
        QCOMPARE(failure(), more > 0 ? u"tooLarge"_s : u"badPackage"_s);
        QVERIFY(!m_bench->downloaded().contains(m_bench->package.file));
    }
}

void TestPackageDownload::refusesAPackageThatIsLongerThanItSays()
{
    answerPackageWith({ .body = m_bench->bytes + "more", .length = -1 });
    QCOMPARE(failure(), u"tooLarge"_s);
    QVERIFY(!m_bench->downloaded().contains(m_bench->package.file));
}

void TestPackageDownload::refusesAPackageThatIsShorterThanTheFeedTells()
{
    answerPackageWith({ .body = m_bench->bytes.chopped(1), .length = -1 });
    QCOMPARE(failure(), u"badPackage"_s);
    QCOMPARE(m_bench->downloaded(), QStringList());
}

void TestPackageDownload::refusesAPackageThatNeverEnds()
{
    answerPackageWith(
        { .body = QByteArray(4096, '.'), .manner = HttpsServer::Manner::endless, .length = -1 });
    QCOMPARE(failure(), u"tooLarge"_s);
    QVERIFY(!m_bench->downloaded().contains(m_bench->package.file));
}

void TestPackageDownload::refusesAPackageThatTrickles()
{
    m_bench->policy.package.span = 500ms;
    answerPackageWith(
        { .manner = HttpsServer::Manner::trickling, .length = m_bench->bytes.size() });
    QCOMPARE(failure(), u"tooSlow"_s);
    QVERIFY(!m_bench->downloaded().contains(m_bench->package.file));
}

void TestPackageDownload::refusesARedirectToPlainHttp()
{
    answerPackageWith({ .status = 302, .headers = { "Location: http://127.0.0.1:9/ferrin.deb" } });
    QCOMPARE(failure(), u"notEncrypted"_s);
}

void TestPackageDownload::continuesWhatACutConnectionLeft()
{
    answerPackageWith(
        { .body = m_bench->bytes, .manner = HttpsServer::Manner::cutShort, .count = 100'000 });
    QCOMPARE(failure(), u"noConnection"_s);
    QCOMPARE(m_bench->downloaded(), QStringList { part() });
    const qsizetype have = m_bench->contents(part()).size();
    QVERIFY(have > 0);

    m_bench->server.answers.clear();
    m_bench->server.requests.clear();
    QVERIFY(succeeds());
    QCOMPARE(askedRanges(), QList { "bytes=" + QByteArray::number(have) + '-' });
}

void TestPackageDownload::takesAPartThatIsWholeAlready()
{
    m_bench->write(part(), m_bench->bytes);
    QVERIFY(succeeds());
    QVERIFY(m_bench->server.requests.isEmpty());
}

void TestPackageDownload::beginsAgainWhereThePartIsOfAnotherFile()
{
    const auto length = m_bench->bytes.size();
    for (const qsizetype have : { qsizetype(1000), length, length + 1 }) {
        m_bench->write(part(), QByteArray(have, '.'));
        QVERIFY(succeeds());
        QVERIFY(QFile::remove(m_bench->downloads() + u'/' + m_bench->package.file));
    }
}

void TestPackageDownload::beginsAgainWhereTheServerKnowsNoParts()
{
    m_bench->write(part(), m_bench->bytes.first(1000));
    answerPackageWith({ .body = m_bench->bytes });
    QVERIFY(succeeds());
    QCOMPARE(askedRanges(), QList { "bytes=1000-"_ba });
}

void TestPackageDownload::beginsAgainWhereTheServerSendsAnotherPart()
{
    m_bench->write(part(), m_bench->bytes.first(1000));
    m_bench->server.answers.insert(
        "/" + m_bench->package.file.toUtf8(), [this](const HttpsServer::Request &request) {
            if (!request.headers.contains("range"))
                return HttpsServer::Answer { .body = m_bench->bytes };
            return HttpsServer::Answer { .status = 206,
                                         .body = m_bench->bytes.sliced(999),
                                         .headers = { "Content-Range: bytes 999-299999/300000" } };
        });
    QVERIFY(succeeds());
    QCOMPARE(askedRanges(), QList({ "bytes=1000-"_ba, ""_ba }));
}

void TestPackageDownload::beginsAgainOnlyOnce()
{
    m_bench->write(part(), m_bench->bytes.first(1000));
    answerPackageWith({ .body = QByteArray(m_bench->bytes.size(), '.') });
    QCOMPARE(failure(), u"badPackage"_s);
    QCOMPARE(askedRanges(), QList({ "bytes=1000-"_ba, ""_ba }));
    QCOMPARE(m_bench->downloaded(), QStringList());
}

void TestPackageDownload::throwsAwayWhatIsNotItsOwn()
{
    m_bench->write(u"ferrin_1.2.0_amd64.deb"_s, "old");
    m_bench->write(u"ferrin_1.2.0_amd64.deb.part"_s, "older");
    QVERIFY(succeeds());
}

void TestPackageDownload::leavesADownloadOfAnotherSessionAlone()
{
    m_bench->write(part(), "theirs");
    QLockFile theirs(m_bench->downloads() + u"/.lock"_s);
    QVERIFY(theirs.tryLock());
    QCOMPARE(failure(), u"alreadyAtWork"_s);
    QCOMPARE(m_bench->contents(part()), "theirs"_ba);
}

void TestPackageDownload::tellsOfAFolderThatCannotBeMade()
{
    QFile inTheWay(m_bench->folder.filePath(u"cache"_s));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QCOMPARE(failure(), u"cannotWrite"_s);
}

void TestPackageDownload::keepsThePartWhenItIsCancelled()
{
    answerPackageWith(
        { .body = m_bench->bytes, .manner = HttpsServer::Manner::stalled, .count = 100'000 });
    m_bench->engine().download(m_bench->request());
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->contents(part()).size(), 100'000, 60'000);
    m_bench->engine().cancel();
    QVERIFY(m_bench->answers.isEmpty());

    m_bench->server.answers.clear();
    QVERIFY(succeeds());
    QCOMPARE(askedRanges(), QList({ ""_ba, "bytes=100000-"_ba }));
}

QTEST_GUILESS_MAIN(TestPackageDownload)
#include "test_packagedownload.moc"
