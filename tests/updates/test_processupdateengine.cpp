// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"
#include "tests/updates/networkbench.h"
#include "updates/processupdateengine.h"

#include <QProcess>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QString helper = QStringLiteral(FERRIN_TEST_UPDATE_HELPER);
constexpr int patience = 60'000;

/// The engine of the program, its helper, and a server that the helper trusts.
struct ProcessBench : NetworkBench
{
    void use(const QString &program, const QStringList &arguments = {})
    {
        process = std::make_unique<ProcessUpdateEngine>(program, arguments);
        QObject::connect(process.get(), &UpdateEngine::checked, &server,
                         [this](const UpdateOffer &offer) { answers.append(offer); });
        QObject::connect(process.get(), &UpdateEngine::progressed, &server,
                         [this](qint64 received) { progress.append(received); });
        QObject::connect(process.get(), &UpdateEngine::downloaded, &server,
                         [this](const QString &path) { answers.append(path); });
        QObject::connect(process.get(), &UpdateEngine::failed, &server,
                         [this](const UpdateTrouble &trouble) { answers.append(trouble); });
    }

    void useHelper(const QStringList &more = {})
    {
        use(helper, QStringList { authority.certificatePath() } + more);
    }

    [[nodiscard]] std::optional<Answer> download()
    {
        process->download(request());
        return answer();
    }

    /// Half of the package, and then nothing more.
    void stallInTheMiddle()
    {
        server.answers.insert("/" + package.file.toUtf8(), [this](const auto &) {
            return HttpsServer::Answer { .body = bytes,
                                         .manner = HttpsServer::Manner::stalled,
                                         .count = bytes.size() / 2 };
        });
    }

    [[nodiscard]] qint64 partLength() const { return contents(package.file + u".part"_s).size(); }

    std::unique_ptr<ProcessUpdateEngine> process;
    QList<qint64> progress;
};

} // namespace

class TestProcessUpdateEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void tellsWhatTheHelperFound();
    void tellsWhyTheHelperRefused();
    void downloadsByTheHelper();
    void tellsOfAHelperThatIsMissing();
    void tellsOfAHelperThatDies();
    void tellsOfAHelperThatTalksNonsense();
    void takesTheNextTaskFromWhoeverHearsOfTheLast();
    void endsTheHelperWhenItIsCancelled();
    void endsTheHelperWithItself();
    void neverLeavesAHelperBehindTheProgram();
    void continuesAfterAKillInTheMiddleOfADownload();
    void neverTakesWhatAKillLeftForWhole();
    void tellsOfAFileThatCannotGrow();
    void tellsOfADiskThatIsFull();
    void tellsOfADiskThatFillsUp();

private:
    std::optional<ProcessBench> m_bench;
};

void TestProcessUpdateEngine::tellsWhatTheHelperFound()
{
    const auto now = QDateTime::currentDateTimeUtc();
    QJsonObject feed = goodFeed(m_bench->package);
    feed.insert(u"issued"_s, now.toString(Qt::ISODate));
    feed.insert(u"expires"_s, now.addDays(1).toString(Qt::ISODate));
    m_bench->server.files.insert("/feed", signedJson(feed, m_bench->key));
    m_bench->useHelper();
    m_bench->process->check(checkOf(m_bench->server.url(u"feed"_s), m_bench->key));
    const auto answer = m_bench->answer();
    QVERIFY(answer && std::holds_alternative<UpdateOffer>(*answer));
    const auto &release = std::get<UpdateOffer>(*answer).release;
    QVERIFY(release);
    QCOMPARE(release->package, m_bench->package);
}

void TestProcessUpdateEngine::tellsWhyTheHelperRefused()
{
    m_bench->useHelper();
    m_bench->process->check(checkOf(m_bench->server.url(u"feed"_s), newSigningKey()));
    QCOMPARE(failureOf(m_bench->answer()), u"badSignature"_s);
}

void TestProcessUpdateEngine::downloadsByTheHelper()
{
    m_bench->useHelper();
    const auto answer = m_bench->download();
    QVERIFY(answer && std::holds_alternative<QString>(*answer));
    QCOMPARE(std::get<QString>(*answer), m_bench->downloads() + u'/' + m_bench->package.file);
    QCOMPARE(m_bench->contents(m_bench->package.file), m_bench->bytes);
    QCOMPARE(m_bench->progress.last(), m_bench->package.length);
}

void TestProcessUpdateEngine::tellsOfAHelperThatIsMissing()
{
    m_bench->use(u"/nowhere/ferrin-update-helper"_s);
    QCOMPARE(failureOf(m_bench->download()), u"brokenOff"_s);
}

void TestProcessUpdateEngine::tellsOfAHelperThatDies()
{
    m_bench->use(u"/bin/false"_s);
    QCOMPARE(failureOf(m_bench->download()), u"brokenOff"_s);
}

void TestProcessUpdateEngine::tellsOfAHelperThatTalksNonsense()
{
    m_bench->use(u"/bin/cat"_s);
    QCOMPARE(failureOf(m_bench->download()), u"brokenOff"_s);
}

void TestProcessUpdateEngine::takesTheNextTaskFromWhoeverHearsOfTheLast()
{
    m_bench->useHelper();
    connect(m_bench->process.get(), &UpdateEngine::failed, this, [this] {
        m_bench->answers.clear();
        m_bench->process->download(m_bench->request());
    });
    m_bench->process->check(checkOf(m_bench->server.url(u"feed"_s), newSigningKey()));
    const auto answer = m_bench->answer();
    QVERIFY(answer && std::holds_alternative<QString>(*answer));
}

void TestProcessUpdateEngine::endsTheHelperWhenItIsCancelled()
{
    m_bench->stallInTheMiddle();
    m_bench->useHelper();
    m_bench->process->download(m_bench->request());
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->partLength(), m_bench->bytes.size() / 2, patience);
    m_bench->process->cancel();
    // A helper that lived on would still have the folder to itself.
    m_bench->server.answers.clear();
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->process->findChildren<QProcess *>().isEmpty(), patience);
    QVERIFY(m_bench->answers.isEmpty());
    const auto answer = m_bench->download();
    QVERIFY(answer && std::holds_alternative<QString>(*answer));
}

void TestProcessUpdateEngine::endsTheHelperWithItself()
{
    const LogCapture log;
    m_bench->stallInTheMiddle();
    m_bench->useHelper();
    m_bench->process->download(m_bench->request());
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->partLength(), m_bench->bytes.size() / 2, patience);
    m_bench->process.reset();
    m_bench->server.answers.clear();
    m_bench->useHelper();
    const auto answer = m_bench->download();
    QVERIFY(answer && std::holds_alternative<QString>(*answer));
}

void TestProcessUpdateEngine::neverLeavesAHelperBehindTheProgram()
{
    m_bench->stallInTheMiddle();
    QProcess process;
    PrivateBus::endWithTest(&process);
    process.start(helper, { m_bench->authority.certificatePath() });
    process.write(lineFrom(UpdateTask(m_bench->request())));
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->partLength(), m_bench->bytes.size() / 2, patience);
    QCOMPARE(process.state(), QProcess::Running);
    // All that the end of the program does, however it comes.
    process.closeWriteChannel();
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, patience);
}

void TestProcessUpdateEngine::continuesAfterAKillInTheMiddleOfADownload()
{
    m_bench->stallInTheMiddle();
    QProcess process;
    PrivateBus::endWithTest(&process);
    process.start(helper, { m_bench->authority.certificatePath() });
    process.write(lineFrom(UpdateTask(m_bench->request())));
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->partLength(), m_bench->bytes.size() / 2, patience);
    process.kill();
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, patience);
    QVERIFY(!m_bench->downloaded().contains(m_bench->package.file));

    m_bench->server.answers.clear();
    m_bench->useHelper();
    const auto answer = m_bench->download();
    QVERIFY(answer && std::holds_alternative<QString>(*answer));
    QCOMPARE(m_bench->contents(m_bench->package.file), m_bench->bytes);
    QCOMPARE(m_bench->server.requests.last().headers.value("range"),
             "bytes=" + QByteArray::number(m_bench->bytes.size() / 2) + '-');
}

void TestProcessUpdateEngine::neverTakesWhatAKillLeftForWhole()
{
    // Whatever stood on the disk when the power went: as long as the package, and not it.
    m_bench->write(m_bench->package.file,
                   m_bench->bytes.first(200'000) + QByteArray(100'000, '\0'));
    m_bench->write(m_bench->package.file + u".part"_s,
                   m_bench->bytes.first(150'000) + QByteArray(50'000, '\0'));
    m_bench->useHelper();
    const auto answer = m_bench->download();
    QVERIFY(answer && std::holds_alternative<QString>(*answer));
    QCOMPARE(m_bench->contents(m_bench->package.file), m_bench->bytes);
}

void TestProcessUpdateEngine::tellsOfAFileThatCannotGrow()
{
    m_bench->useHelper({ u"100000"_s });
    QCOMPARE(failureOf(m_bench->download()), u"cannotWrite"_s);
    QCOMPARE(m_bench->downloaded(), QStringList());
}

void TestProcessUpdateEngine::tellsOfADiskThatIsFull()
{
    m_bench->useHelper({ u"full"_s });
    QCOMPARE(failureOf(m_bench->download()), u"diskFull"_s);
    QCOMPARE(m_bench->downloaded(), QStringList());
}

void TestProcessUpdateEngine::tellsOfADiskThatFillsUp()
{
    // A disk of 128 KiB that is seen by the helper alone, for those whom the machine lets mount
    // one; elsewhere the kernel takes what comes in small pieces, and then nothing more.
    const QStringList onSmallDisk { u"--mount"_s,
                                    u"--"_s,
                                    u"sh"_s,
                                    u"-c"_s,
                                    u"mount -t tmpfs -o size=128k tmpfs \"$0\" && exec \"$@\""_s,
                                    m_bench->downloads() };
    QVERIFY(QDir().mkpath(m_bench->downloads()));
    m_bench->useHelper({ u"full"_s });
    for (const QStringList &rights :
         { QStringList(), QStringList { u"--user"_s, u"--map-root-user"_s } }) {
        if (QProcess::execute(u"unshare"_s, rights + onSmallDisk + QStringList(u"true"_s)) == 0) {
            m_bench->use(u"unshare"_s,
                         rights + onSmallDisk
                             + QStringList { helper, m_bench->authority.certificatePath() });
            break;
        }
    }
    QCOMPARE(failureOf(m_bench->download()), u"diskFull"_s);
    QCOMPARE(m_bench->downloaded(), QStringList());
}

QTEST_GUILESS_MAIN(TestProcessUpdateEngine)
#include "test_processupdateengine.moc"
