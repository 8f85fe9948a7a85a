// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packagesources.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {
const QByteArray targets
    = "Debian-stable-main Debian-bookworm-main http://deb.debian.org/debian/ bookworm\n"
      "Debian-stable-updates-main Debian-bookworm-updates-main http://deb.debian.org/debian/ "
      "bookworm-updates\n"
      "Ferrin-stable-main Ferrin-stable-main http://127.0.0.1:8000/ stable\n";
} // namespace

class TestPackageSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheSourceOfAPackage()
    {
        QCOMPARE(sourceNames(targets, { u"ferrin-stable-main"_s }),
                 (QStringList { u"http://127.0.0.1:8000 stable "_s,
                                u"http://127.0.0.1:8000/dists/stable/"_s,
                                u"http://127.0.0.1:8000/stable"_s }));
        QCOMPARE(sourceNames(targets, { u"debian-bookworm-main"_s }).constFirst(),
                 u"http://deb.debian.org/debian bookworm "_s);
        QVERIFY(sourceNames(targets, { u"local"_s }).isEmpty());
        QVERIFY(sourceNames(targets, {}).isEmpty());
        QCOMPARE(sourceNames(targets, { u"local"_s, u"ferrin-stable-main"_s }).size(), 3);
        QVERIFY(sourceNames("", { u"ferrin-stable-main"_s }).isEmpty());
    }

    void tellsWhoseFailureItIs_data()
    {
        QTest::addColumn<QString>("errors");
        QTest::addColumn<bool>("isOfOthers");
        QTest::newRow("ours") << u"E: http://127.0.0.1:8000 stable InRelease is not signed"_s
                              << false;
        QTest::newRow("a file of ours")
            << u"E: Failed to fetch http://127.0.0.1:8000/dists/stable/main/Packages"_s << false;
        QTest::newRow("another's")
            << u"E: http://127.0.0.1:8001/x bar InRelease is not there"_s << true;
        QTest::newRow("another's, below our address")
            << u"E: http://127.0.0.1:8000/x bar InRelease is not there"_s << true;
        QTest::newRow("both")
            << u"E: http://a b InRelease\nE: http://127.0.0.1:8000 stable InRelease"_s << false;
        QTest::newRow("a warning of ours beside another's error")
            << u"W: http://127.0.0.1:8000 stable: a weak key\nE: http://a b InRelease"_s << true;
        QTest::newRow("nobody's") << u"E: Could not get lock /var/lib/apt/lists/lock"_s << false;
        QTest::newRow("nothing") << QString() << false;
    }

    void tellsWhoseFailureItIs()
    {
        QFETCH(QString, errors);
        QFETCH(bool, isOfOthers);
        QCOMPARE(isOfOtherSources(errors, sourceNames(targets, { u"ferrin-stable-main"_s })),
                 isOfOthers);
        QVERIFY(!isOfOtherSources(errors, {}));
    }
};

FERRIN_TEST(QCoreApplication, TestPackageSources)
#include "test_packagesources.moc"
