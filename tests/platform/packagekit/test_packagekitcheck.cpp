// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/packagekit/enginebench.h"
#include "tests/support/testmain.h"

#include <QDBusConnectionInterface>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray appStream = R"(<component><releases>
<release version="1.1" date="2026-04-29T22:00:00Z"><description><p>Quieter.</p></description></release>
</releases></component>)";

const QByteArray targets = "Ferrin-stable-main Ferrin-stable-main http://example.org/f/ stable\n"
                           "Debian-stable-main Debian-bookworm-main http://example.net/d/ stable\n";

} // namespace

class TestPackageKitCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench.emplace(); }
    void cleanup()
    {
        m_bench->log.ignoreRest();
        m_bench.reset();
    }

    void findsANewerVersionAndWhatIsNewInIt()
    {
        m_bench->outputs.insert(u"appstreamcli"_s, appStream);
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"checked"_s });
        const Release expected { u"1.1"_s, m_bench->service.offered, QDate(2026, 4, 29), 4'200'000,
                                 u"Quieter."_s };
        QCOMPARE(m_bench->found, expected);
        QCOMPARE(m_bench->service.calls,
                 (QStringList { u"SearchFiles"_s, u"RefreshCache"_s, u"GetUpdates"_s,
                                u"GetDetails"_s }));
        QCOMPARE(m_bench->service.arguments[u"SearchFiles"_s][1].toStringList(),
                 QStringList { u"/usr/bin/ferrin"_s });
    }

    void takesTheChangelogWhereThereAreNoNotes()
    {
        m_bench->service.changelog = u"ferrin (1.1-1)\n\n  * Quieter.\x1b[1m"_s;
        m_bench->check();
        QTRY_VERIFY(m_bench->found);
        QCOMPARE(m_bench->found->notes, u"ferrin (1.1-1)\n\n  * Quieter.[1m"_s);
    }

    void offersWithoutNotesWhereThereAreNone()
    {
        m_bench->service.changelog = u"Changelog for this version is not yet available"_s;
        m_bench->check();
        QTRY_VERIFY(m_bench->found);
        QCOMPARE(m_bench->found->notes, QString());
    }

    void offersNothingThatIsNotNewer_data()
    {
        QTest::addColumn<QString>("offered");
        QTest::newRow("nothing") << QString();
        QTest::newRow("the same") << u"ferrin;1.0-1;amd64;ferrin-stable-main"_s;
        QTest::newRow("older") << u"ferrin;0.9-1;amd64;ferrin-stable-main"_s;
        QTest::newRow("before the release") << u"ferrin;1.0-1~rc1;amd64;ferrin-stable-main"_s;
        QTest::newRow("another architecture") << u"ferrin;1.1-1;i386;ferrin-stable-main"_s;
        QTest::newRow("another package") << u"iron;1.1-1;amd64;ferrin-stable-main"_s;
        QTest::newRow("nonsense") << u"ferrin"_s;
    }

    void offersNothingThatIsNotNewer()
    {
        QFETCH(QString, offered);
        m_bench->service.offered = offered;
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"checked"_s });
        QVERIFY(!m_bench->found);
    }

    void offersNothingThatIsHeldBack()
    {
        m_bench->service.acts.insert(u"GetUpdates"_s, [this](const QString &path) {
            m_bench->service.package(path, 9, m_bench->service.offered);
            m_bench->service.finish(path);
        });
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"checked"_s });
        QVERIFY(!m_bench->found);
    }

    void tellsTheRevisionWhereThatIsWhatIsNew()
    {
        m_bench->service.offered = u"ferrin;1.0-2;amd64;ferrin-stable-main"_s;
        m_bench->check();
        QTRY_VERIFY(m_bench->found);
        QCOMPARE(m_bench->found->version, u"1.0-2"_s);
    }

    void knowsThatNoPackageOwnsTheProgram()
    {
        m_bench->service.installed.clear();
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"notPackaged"_s });
        QCOMPARE(m_bench->engine.support(), UpdateSupport::notPackaged);
        QCOMPARE(m_bench->service.calls, QStringList { u"SearchFiles"_s });
    }

    void knowsAPackageThatIsNotSetUpFromNone()
    {
        m_bench->service.installed.clear();
        m_bench->outputs.insert(u"dpkg-query"_s, "ferrin: /usr/bin/ferrin\n");
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"setupFailed"_s });
        QCOMPARE(m_bench->engine.support(), UpdateSupport::full);
    }

    void failsWithItsOwnSource()
    {
        m_bench->outputs.insert(u"apt-get"_s, targets);
        failRefresh(u"E: http://example.org/f stable InRelease is not (yet) available (BADSIG, "
                    "a bad signature)\n"_s);
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"notTrusted"_s });
        QVERIFY(m_bench->trouble.detail.contains(u"BADSIG"));
    }

    void doesNotMindAnotherSourcesFailure()
    {
        // The installed version is in no list any more.
        m_bench->service.installed = u"ferrin;1.0-1;amd64;manual:local"_s;
        m_bench->outputs.insert(u"apt-get"_s, targets);
        failRefresh(u"E: http://example.net/d stable InRelease is not (yet) available (Could not "
                    "connect)\n"_s);
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"checked"_s });
        QVERIFY(m_bench->found);
    }

    void failsWhereItCannotTellWhoseFailureItIs()
    {
        failRefresh(u"E: http://example.net/d stable InRelease is not available (Could not "
                    "connect)\n"_s);
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"unreachable"_s });
    }

    void saysThatThePackageIsNotSetUp()
    {
        m_bench->service.offered.clear();
        m_bench->outputs.insert(u"dpkg-query"_s, "half-configured");
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"setupFailed"_s });
    }

    void asksNothingOfTheUserInTheBackground()
    {
        m_bench->engine.check(UpdateManner::background);
        QTRY_COMPARE(m_bench->events.size(), 1);
        const QStringList hints = m_bench->service.arguments[u"SetHints"_s][0].toStringList();
        QVERIFY(hints.contains(u"interactive=false"));
        QVERIFY(hints.contains(u"background=true"));
    }

    void failsWhenTheServiceVanishes()
    {
        m_bench->service.acts.insert(u"RefreshCache"_s,
                                     [this](const QString &) { m_bench->service.leave(); });
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"serviceBroken"_s });
    }

    void failsWithoutTheService()
    {
        m_bench->service.leave();
        const auto isThere = [bus = m_bench->bus.connect()] {
            return bus.interface()->isServiceRegistered(u"org.freedesktop.PackageKit"_s).value();
        };
        QTRY_VERIFY(!isThere());
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"noService"_s });
        QCOMPARE(m_bench->engine.support(), UpdateSupport::noService);
    }

    void cancelsWhatStandsStill()
    {
        m_bench->service.acts.insert(u"RefreshCache"_s, [](const QString &) {});
        m_bench->service.acts.insert(u"Cancel"_s, [this](const QString &path) {
            m_bench->service.fail(path, 17, u"cancelled"_s);
        });
        m_bench->check();
        QTRY_COMPARE(m_bench->events, QStringList { u"tooSlow"_s });
        QVERIFY(m_bench->service.calls.contains(u"Cancel"));
    }

    void waitsForOthersWithoutALimit()
    {
        m_bench->service.acts.insert(u"RefreshCache"_s, [this](const QString &path) {
            m_bench->service.change(path, { { u"Status"_s, 30U } });
        });
        m_bench->check();
        QTRY_COMPARE(m_bench->progress.activity, UpdateActivity::waiting);
        QTest::qWait(500);
        QCOMPARE(m_bench->events, QStringList());
        m_bench->service.finish(m_bench->service.transaction);
        QTRY_COMPARE(m_bench->events, QStringList { u"checked"_s });
    }

    void tellsNothingMoreOnceItIsCancelled()
    {
        m_bench->service.acts.insert(u"RefreshCache"_s, [](const QString &) {});
        m_bench->check();
        QTRY_VERIFY(m_bench->service.calls.contains(u"RefreshCache"));
        m_bench->engine.cancel();
        QTRY_VERIFY(m_bench->service.calls.contains(u"Cancel"));
        m_bench->service.finish(m_bench->service.transaction, 3);
        QTest::qWait(50);
        QCOMPARE(m_bench->events, QStringList());
    }

    void knowsWithoutStartingItWhetherThereIsAService()
    {
        m_bench->engine.refreshSupport();
        QTRY_COMPARE(m_bench->engine.support(), UpdateSupport::noService);
        m_bench->bus.addService(u"org.freedesktop.PackageKit"_s, u"/bin/false"_s);
        m_bench->engine.refreshSupport();
        QTRY_COMPARE(m_bench->engine.support(), UpdateSupport::full);
        QCOMPARE(m_bench->service.calls, QStringList());
    }

    void asksNobodyAboutAProgramThatNoPackageInstalls()
    {
        for (const QString &path : { u"/home/u/ferrin"_s, u"/usr/local/bin/ferrin"_s, QString() })
            QVERIFY(!isInPackageFolder(path));
        QVERIFY(isInPackageFolder(u"/usr/bin/ferrin"_s));
    }

private:
    void failRefresh(const QString &text)
    {
        m_bench->service.acts.insert(u"RefreshCache"_s, [this, text](const QString &path) {
            m_bench->service.fail(path, 64, text);
        });
    }

    std::optional<EngineBench> m_bench;
};

FERRIN_TEST(QCoreApplication, TestPackageKitCheck)
#include "test_packagekitcheck.moc"
