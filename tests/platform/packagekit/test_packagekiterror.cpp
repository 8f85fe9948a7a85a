// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packagekiterror.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class PackageKitErrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // As Debian 12 words them.
    void tellsTheCausesApart_data()
    {
        QTest::addColumn<uint>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<UpdateFailure>("failure");
        const auto row = [](const char *name, uint code, const char *text, UpdateFailure failure) {
            QTest::newRow(name) << code << QString::fromUtf8(text) << failure;
        };
        row("offline", 2, "Cannot refresh cache whilst offline", UpdateFailure::offline);
        row("unsigned", 64, "E: The repository 'http://a stable InRelease' is not signed.",
            UpdateFailure::notTrusted);
        row("edited list", 64,
            "W: GPG error: http://a stable InRelease: The following signatures were invalid: "
            "BADSIG 510C\nE: http://a stable InRelease is not (yet) available (The following "
            "signatures were invalid: BADSIG 510C)",
            UpdateFailure::notTrusted);
        row("another key", 64,
            "E: http://a stable InRelease is not (yet) available (The following signatures "
            "couldn't be verified because the public key is not available: NO_PUBKEY 510C)",
            UpdateFailure::notTrusted);
        row("changed packages", 64, "E: Failed to fetch http://a/Packages  Hash Sum mismatch",
            UpdateFailure::tampered);
        row("shorter packages", 64,
            "E: Failed to fetch http://a/Packages  File has unexpected size (1 != 2)",
            UpdateFailure::tampered);
        row("expired", 64,
            "E: Release file for http://a/InRelease is expired (invalid since 3d). Updates for "
            "this repository will not be applied.",
            UpdateFailure::notCurrent);
        row("of the future", 64, "E: Release file for http://a/InRelease is not valid yet",
            UpdateFailure::notCurrent);
        row("gone", 64,
            "E: http://a stable InRelease is not (yet) available (Could not connect to a:80)",
            UpdateFailure::unreachable);
        row("no name", 64, "E: Temporary failure resolving 'a'", UpdateFailure::unreachable);
        row("an error of the server", 64, "E: http://a stable Release 500 Internal Server Error",
            UpdateFailure::sourceError);
        row("a missing list", 64, "E: http://a stable Release 404 Not Found",
            UpdateFailure::sourceError);
        row("lists are locked", 64, "E: Could not get lock /var/lib/apt/lists/lock",
            UpdateFailure::busy);
        row("a changed package", 10, "E: Failed to fetch http://a/f.deb  Hash Sum mismatch",
            UpdateFailure::tampered);
        row("a missing package", 10, "E: Failed to fetch http://a/f.deb  404  File not found",
            UpdateFailure::packageMissing);
        row("a stalled package", 10, "E: Failed to fetch http://a/f.deb  Connection timed out",
            UpdateFailure::tooSlow);
        row("dpkg is locked", 26, "E: Could not get lock /var/lib/dpkg/lock-frontend",
            UpdateFailure::busy);
        row("interrupted", 26,
            "E: dpkg was interrupted, you must manually run 'dpkg --configure "
            "-a' to correct the problem.",
            UpdateFailure::interrupted);
        row("refused", 48, "Failed to obtain authentication.", UpdateFailure::notAuthorized);
        row("a failing script", 58,
            "installed ferrin package post-installation script subprocess "
            "returned error exit status 1",
            UpdateFailure::setupFailed);
        row("no space", 10, "E: You don't have enough free space in /var/cache/apt/archives/.",
            UpdateFailure::diskFull);
        row("unknown", 999, "Signature of a new age", UpdateFailure::serviceError);
    }

    void tellsTheCausesApart()
    {
        QFETCH(uint, code);
        QFETCH(QString, text);
        QFETCH(UpdateFailure, failure);
        const UpdateTrouble trouble = troubleFrom(code, text);
        QCOMPARE(trouble.failure, failure);
        QVERIFY(!trouble.detail.contains(u'\n'));
        QVERIFY(trouble.detail.startsWith(u"PackageKit %1: "_s.arg(code)));
    }

    void tellsAnAbsentServiceFromABrokenOne()
    {
        const QDBusError absent(QDBusError::ServiceUnknown, u"no such name"_s);
        QCOMPARE(troubleFrom(absent).failure, UpdateFailure::noService);
        const QDBusError broken(QDBusMessage::createError(
            u"org.freedesktop.DBus.Error.Spawn.ExecFailed"_s, u"no such file"_s));
        QCOMPARE(troubleFrom(broken).failure, UpdateFailure::serviceBroken);
    }
};

FERRIN_TEST(QCoreApplication, PackageKitErrorTest)
#include "test_packagekiterror.moc"
