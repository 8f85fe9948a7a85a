// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeinstaller.h"
#include "tests/updates/fakenetwork.h"
#include "tests/updates/networkbench.h"
#include "updates/appupdater.h"
#include "updates/processupdateengine.h"

#include <QProcess>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using Stage = UpdateSession::Stage;

namespace {

constexpr int patience = 60'000;

/// What a run of a program said, and whether it was content.
struct Outcome
{
    bool succeeded = false;
    QByteArray said;
};

Outcome run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(-1);
    return { ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll() };
}

/// A folder in which releases are made with a key of its own, and a server that serves it.
struct ReleaseBench
{
    ReleaseBench()
    {
        made = release({ u"--new-key"_s, key });
        publicKey = QByteArray::fromBase64(made.said.trimmed());
    }

    [[nodiscard]] static Outcome release(const QStringList &arguments)
    {
        return run(QStringLiteral(FERRIN_RELEASE_SCRIPT),
                   QStringList { u"--build-tree"_s, QStringLiteral(FERRIN_BUILD_TREE) }
                       + arguments);
    }

    [[nodiscard]] Outcome publish(const QStringList &packages) const
    {
        return release(QStringList { u"--key"_s, key, u"--out"_s, out, u"--notes"_s, notes() }
                       + packages);
    }

    /// A package that holds a file, or another where the release is to differ.
    [[nodiscard]] QString package(const QString &version,
                                  const QString &architecture = u"amd64"_s) const
    {
        const QString tree = folder.filePath(u"tree-"_s + version + architecture);
        write(
            tree + u"/DEBIAN/control"_s,
            u"Package: ferrin\nVersion: %1\nArchitecture: %2\nMaintainer: Somebody <a@b.example>\n"
            "Description: a test\n"_s.arg(version, architecture));
        write(tree + u"/usr/share/ferrin/version"_s, version);
        const QString file = folder.filePath(u"ferrin_%1_%2.deb"_s.arg(version, architecture));
        const Outcome built
            = run(u"dpkg-deb"_s, { u"--root-owner-group"_s, u"--build"_s, tree, file });
        if (!built.succeeded)
            qFatal("dpkg-deb: %s", built.said.constData());
        return file;
    }

    [[nodiscard]] QString notes() const
    {
        const QString file = folder.filePath(u"notes.md"_s);
        write(file, u"- Quieter.\n"_s);
        return file;
    }

    static void write(const QString &path, const QString &text)
    {
        QFile file(path);
        if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(text.toUtf8()) < 0)
            qFatal("%s cannot be written", qPrintable(path));
    }

    [[nodiscard]] QByteArray contents(const QString &name) const
    {
        QFile file(out + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] std::optional<Feed> feed() const
    {
        const auto text = signedText(contents(u"feed"_s), publicKey);
        return text ? feedFromJson(*text) : std::nullopt;
    }

    QTemporaryDir folder;
    const QString key = folder.filePath(u"secret/release.key"_s);
    const QString out = folder.filePath(u"public"_s);
    bool hasSecretFolder = QDir(folder.path()).mkpath(u"secret"_s);
    Outcome made;
    QByteArray publicKey;
};

} // namespace

class TestReleaseHabit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup() { m_bench.reset(); }

    void isFoundFetchedAndVerifiedByAnInstalledVersion();
    void makesAKeyThatOnlyItsOwnerReads();
    void neverReplacesAKey();
    void takesNoKeyFromInsideTheTree();
    void tellsOfEveryArchitecture();
    void renewsAFeed();
    void refusesToRenewWhatSomebodyElseWrote();
    void refusesToGoBack();
    void refusesPackagesOfTwoVersions();
    void refusesAVersionThatNobodyWouldTake();
    void leavesTheFeedAloneWhenItGivesUp();

private:
    std::optional<ReleaseBench> m_bench;
};

void TestReleaseHabit::isFoundFetchedAndVerifiedByAnInstalledVersion()
{
    const Outcome published = m_bench->publish({ m_bench->package(u"1.3.0"_s) });
    QVERIFY2(published.succeeded, published.said.constData());
    const Authority authority;
    HttpsServer server(authority.serverFor(u"IP:127.0.0.1"_s));
    const QStringList names = QDir(m_bench->out).entryList(QDir::Files);
    for (const QString &name : names)
        server.files.insert("/" + name.toUtf8(), m_bench->contents(name));

    LogCapture log;
    MemoryDefaultsStore store;
    ProcessUpdateEngine engine(QStringLiteral(FERRIN_TEST_UPDATE_HELPER),
                               { authority.certificatePath() });
    FakeInstaller installer;
    FakeNetwork network;
    AppUpdater installed({ .feed = { server.url(u"feed"_s), m_bench->publicKey, u"amd64"_s },
                           .installedVersion = u"1.2.9"_s,
                           .folder = m_bench->folder.filePath(u"cache"_s),
                           .store = store,
                           .engine = engine,
                           .installer = installer,
                           .network = network,
                           .battery = [] { return BatteryReserve(); } });
    UpdateSession &session = installed.controller()->updater()->session();

    installed.controller()->updater()->checkForUpdates();
    QTRY_COMPARE_WITH_TIMEOUT(session.stage(), Stage::available, patience);
    QCOMPARE(session.version(), u"1.3.0"_s);
    QCOMPARE(session.notes(), u"- Quieter.\n"_s);
    session.download();
    QTRY_COMPARE_WITH_TIMEOUT(session.stage(), Stage::readyToInstall, patience);
    session.install();
    QCOMPARE(installer.handedOver.size(), 1);
    QFile package(installer.handedOver.first());
    QVERIFY(package.open(QIODevice::ReadOnly));
    QCOMPARE(package.readAll(), m_bench->contents(u"ferrin_1.3.0_amd64.deb"_s));
    QCOMPARE(log.take(),
             QStringList({ u"info: Version 1.3.0 is available"_s,
                           u"info: Version 1.3.0 is downloaded and verified"_s }));
}

void TestReleaseHabit::makesAKeyThatOnlyItsOwnerReads()
{
    QVERIFY2(m_bench->made.succeeded, m_bench->made.said.constData());
    QCOMPARE(m_bench->publicKey.size(), 32);
    QCOMPARE(QFile::permissions(m_bench->key) & QFile::Permissions(0x0077), QFile::Permissions());
    const Outcome told = ReleaseBench::release({ u"--public-key"_s, m_bench->key });
    QCOMPARE(told.said, m_bench->made.said);
}

void TestReleaseHabit::neverReplacesAKey()
{
    QVERIFY(!ReleaseBench::release({ u"--new-key"_s, m_bench->key }).succeeded);
    QCOMPARE(ReleaseBench::release({ u"--public-key"_s, m_bench->key }).said, m_bench->made.said);
}

void TestReleaseHabit::takesNoKeyFromInsideTheTree()
{
    const QString inside = QFileInfo(QStringLiteral(FERRIN_RELEASE_SCRIPT)).path() + u"/new.key"_s;
    const Outcome made = ReleaseBench::release({ u"--new-key"_s, inside });
    QVERIFY(!made.succeeded);
    QVERIFY2(made.said.contains("must not lie in the tree"), made.said.constData());
    QVERIFY(!QFile::exists(inside));
}

void TestReleaseHabit::tellsOfEveryArchitecture()
{
    const Outcome published = m_bench->publish(
        { m_bench->package(u"1.3.0"_s), m_bench->package(u"1.3.0"_s, u"arm64"_s) });
    QVERIFY2(published.succeeded, published.said.constData());
    const auto feed = m_bench->feed();
    QVERIFY(feed);
    QCOMPARE(feed->packages.size(), 2);
    for (const QString &architecture : { u"amd64"_s, u"arm64"_s }) {
        const QString file = u"ferrin_1.3.0_%1.deb"_s.arg(architecture);
        QCOMPARE(feed->packages.value(architecture), packageOf(m_bench->contents(file), file));
    }
}

void TestReleaseHabit::renewsAFeed()
{
    QVERIFY(m_bench->publish({ m_bench->package(u"1.3.0"_s) }).succeeded);
    const auto before = m_bench->feed();
    const Outcome renewed = ReleaseBench::release(
        { u"--key"_s, m_bench->key, u"--out"_s, m_bench->out, u"--renew"_s });
    QVERIFY2(renewed.succeeded, renewed.said.constData());
    const auto after = m_bench->feed();
    QVERIFY(before && after);
    QVERIFY(after->issued > before->issued);
    QVERIFY(after->expires > before->expires);
    QCOMPARE(after->version, before->version);
    QCOMPARE(after->packages, before->packages);
}

void TestReleaseHabit::refusesToRenewWhatSomebodyElseWrote()
{
    QVERIFY(m_bench->publish({ m_bench->package(u"1.3.0"_s) }).succeeded);
    const QString theirs
        = QString::fromUtf8(m_bench->contents(u"feed"_s)).replace(u"Quieter"_s, u"Louder"_s);
    ReleaseBench::write(m_bench->out + u"/feed"_s, theirs);
    const Outcome renewed = ReleaseBench::release(
        { u"--key"_s, m_bench->key, u"--out"_s, m_bench->out, u"--renew"_s });
    QVERIFY(!renewed.succeeded);
    QVERIFY2(renewed.said.contains("not signed with this key"), renewed.said.constData());
    QCOMPARE(m_bench->contents(u"feed"_s), theirs.toUtf8());
}

void TestReleaseHabit::refusesToGoBack()
{
    QVERIFY(m_bench->publish({ m_bench->package(u"1.10.0"_s) }).succeeded);
    QVERIFY(!m_bench->publish({ m_bench->package(u"1.9.0"_s) }).succeeded);
    QCOMPARE(m_bench->feed()->version, u"1.10.0"_s);
}

void TestReleaseHabit::refusesPackagesOfTwoVersions()
{
    QVERIFY(
        !m_bench
             ->publish({ m_bench->package(u"1.3.0"_s), m_bench->package(u"1.3.1"_s, u"arm64"_s) })
             .succeeded);
    QVERIFY(!m_bench->feed());
}

void TestReleaseHabit::refusesAVersionThatNobodyWouldTake()
{
    QVERIFY(!m_bench->publish({ m_bench->package(u"1.3.0~rc1"_s) }).succeeded);
    QVERIFY(!m_bench->feed());
}

void TestReleaseHabit::leavesTheFeedAloneWhenItGivesUp()
{
    QVERIFY(m_bench->publish({ m_bench->package(u"1.3.0"_s) }).succeeded);
    const QByteArray feed = m_bench->contents(u"feed"_s);
    const QString noKey = m_bench->notes();
    QVERIFY(!ReleaseBench::release({ u"--key"_s, noKey, u"--out"_s, m_bench->out, u"--renew"_s })
                 .succeeded);
    QCOMPARE(m_bench->contents(u"feed"_s), feed);
}

QTEST_GUILESS_MAIN(TestReleaseHabit)
#include "test_releasehabit.moc"
