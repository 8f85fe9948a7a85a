// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/packagekit/enginebench.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

/// Downloads and installations.
class PackageKitInstallTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup()
    {
        m_bench->log.ignoreRest();
        m_bench.reset();
    }

    void downloadsIntoTheArchive()
    {
        m_bench->service.acts.insert(u"DownloadPackages"_s, [this](const QString &path) {
            m_bench->service.change(
                path, { { u"Status"_s, 8U }, { u"DownloadSizeRemaining"_s, quint64(1'050'000) } });
        });
        m_bench->engine.download(m_bench->release, UpdateManner::interactive);
        const UpdateProgress expected { UpdateActivity::downloading, 0.75, true };
        QTRY_COMPARE(m_bench->progress, expected);
        m_bench->service.finish(m_bench->service.transaction);
        QTRY_COMPARE(m_bench->events, QStringList { u"downloaded"_s });
        const QVariantList arguments = m_bench->service.arguments[u"DownloadPackages"_s];
        QCOMPARE(arguments[0], QVariant(true));
        QCOMPARE(arguments[1].toStringList(), QStringList { m_bench->release.package });
        QCOMPARE(m_bench->service.calls, QStringList { u"DownloadPackages"_s });
    }

    void knowsNoShareBeforeTheRestIsCounted()
    {
        m_bench->service.acts.insert(u"DownloadPackages"_s, [this](const QString &path) {
            m_bench->service.change(
                path, { { u"Status"_s, 8U }, { u"DownloadSizeRemaining"_s, quint64(0) } });
        });
        m_bench->engine.download(m_bench->release, UpdateManner::interactive);
        const UpdateProgress uncounted { UpdateActivity::downloading, std::nullopt, true };
        QTRY_COMPARE(m_bench->progress, uncounted);
        const auto remain = [this](quint64 bytes) {
            m_bench->service.change(m_bench->service.transaction,
                                    { { u"DownloadSizeRemaining"_s, bytes } });
        };
        remain(2'100'000);
        const UpdateProgress half { UpdateActivity::downloading, 0.5, true };
        QTRY_COMPARE(m_bench->progress, half);
        remain(0);
        const UpdateProgress whole { UpdateActivity::downloading, 1.0, true };
        QTRY_COMPARE(m_bench->progress, whole);
        m_bench->service.finish(m_bench->service.transaction);
        QTRY_COMPARE(m_bench->events, QStringList { u"downloaded"_s });
    }

    void sendsNoCancelWhileThatIsNotAllowed()
    {
        m_bench->service.acts.insert(u"DownloadPackages"_s, [this](const QString &path) {
            m_bench->service.change(path, { { u"AllowCancel"_s, false } });
        });
        m_bench->engine.download(m_bench->release, UpdateManner::interactive);
        QTRY_VERIFY(!m_bench->progress.canCancel && !m_bench->service.calls.isEmpty());
        m_bench->engine.cancel();
        QTest::qWait(50);
        QVERIFY(!m_bench->service.calls.contains(u"Cancel"));
        m_bench->service.change(m_bench->service.transaction, { { u"AllowCancel"_s, true } });
        QTRY_VERIFY(m_bench->service.calls.contains(u"Cancel"));
        QCOMPARE(m_bench->events, QStringList());
    }

    void installsTrustedPackagesOnly()
    {
        m_bench->engine.install(m_bench->release);
        QTRY_COMPARE(m_bench->events, QStringList { u"installed"_s });
        const QVariantList arguments = m_bench->service.arguments[u"UpdatePackages"_s];
        QCOMPARE(arguments[0].toULongLong(), 2U);
        QCOMPARE(arguments[1].toStringList(), QStringList { m_bench->release.package });
        QVERIFY(m_bench->service.arguments[u"SetHints"_s][0].toStringList().contains(
            u"interactive=true"));
    }

    void neverReplacesANewerVersion_data()
    {
        QTest::addColumn<QString>("installed");
        QTest::newRow("the same") << u"ferrin;1.1-1;amd64;manual:ferrin-stable-main"_s;
        QTest::newRow("newer") << u"ferrin;1.2-1;amd64;manual:ferrin-stable-main"_s;
    }

    void neverReplacesANewerVersion()
    {
        QFETCH(QString, installed);
        m_bench->service.installed = installed;
        m_bench->engine.install(m_bench->release);
        QTRY_COMPARE(m_bench->events, QStringList { u"installed"_s });
        QVERIFY(!m_bench->service.calls.contains(u"UpdatePackages"));
    }

    void doesNotBelieveASuccessThatHasDoneNothing()
    {
        m_bench->service.acts.remove(u"UpdatePackages"_s);
        m_bench->engine.install(m_bench->release);
        QTRY_COMPARE(m_bench->events, QStringList { u"nothingDone"_s });
    }

    void saysThatThePackageIsNotSetUp()
    {
        m_bench->outputs.insert(u"dpkg-query"_s, "half-configured");
        m_bench->engine.install(m_bench->release);
        QTRY_COMPARE(m_bench->events, QStringList { u"setupFailed"_s });
    }

    void tellsWhatTheSystemIsAt()
    {
        m_bench->service.acts.insert(u"UpdatePackages"_s, [](const QString &) {});
        m_bench->engine.install(m_bench->release);
        QTRY_VERIFY(m_bench->service.calls.contains(u"UpdatePackages"));
        const QString path = m_bench->service.transaction;
        m_bench->service.change(path, { { u"Status"_s, 31U } });
        QTRY_COMPARE(m_bench->progress.activity, UpdateActivity::authorizing);
        // The user may take any time over the password.
        QTest::qWait(400);
        QVERIFY(m_bench->events.isEmpty());
        m_bench->service.change(
            path, { { u"Status"_s, 9U }, { u"Percentage"_s, 40U }, { u"AllowCancel"_s, false } });
        const UpdateProgress expected { UpdateActivity::installing, 0.4, false };
        QTRY_COMPARE(m_bench->progress, expected);
        m_bench->service.change(path, { { u"Percentage"_s, 101U } });
        QTRY_VERIFY(!m_bench->progress.done);
    }

    void saysThatThePasswordWasRefused()
    {
        m_bench->service.acts.insert(u"UpdatePackages"_s, [this](const QString &path) {
            m_bench->service.fail(path, 48, u"Failed to obtain authentication."_s);
        });
        m_bench->engine.install(m_bench->release);
        QTRY_COMPARE(m_bench->events, QStringList { u"notAuthorized"_s });
    }

    void failsWhenTheServiceIsKilled()
    {
        m_bench->service.acts.insert(u"UpdatePackages"_s,
                                     [this](const QString &) { m_bench->service.leave(); });
        m_bench->engine.install(m_bench->release);
        QTRY_COMPARE(m_bench->events, QStringList { u"serviceBroken"_s });
    }

private:
    std::optional<EngineBench> m_bench;
};

FERRIN_TEST(QCoreApplication, PackageKitInstallTest)
#include "test_packagekitinstall.moc"
