// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/updates/fakeengine.h"
#include "tests/updates/fakeinstaller.h"
#include "tests/updates/testfeed.h"
#include "updates/updaterecords.h"
#include "updates/updatesession.h"

#include <QTemporaryDir>
#include <QTest>

namespace ferrin::test {

/// A session on a fake engine, with a package that the engine may pretend to have fetched.
struct SessionBench
{
    SessionBench()
    {
        QObject::connect(&session, &UpdateSession::presentationRequested, [this] { ++shown; });
    }

    void offer(const std::optional<Release> &offered)
    {
        Q_EMIT engine.checked({ readingTime, offered });
    }
    void offer() { offer(release); }
    void fail(UpdateFailure failure)
    {
        Q_EMIT engine.failed({ failure, QStringLiteral("for a reason") });
    }
    void finishDownload()
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
        file.close();
        Q_EMIT engine.downloaded(path);
    }
    void becomeReady()
    {
        session.begin();
        offer();
        session.download();
        finishDownload();
    }

    LogCapture log;
    const QTemporaryDir folder;
    const QByteArray bytes = somePackage(5000);
    const QString path = folder.filePath(QStringLiteral("ferrin_1.3.0_amd64.deb"));
    const Release release { QStringLiteral("1.3.0"), QDate(2026, 4, 30),
                            QStringLiteral("- **Quieter**\n"),
                            packageOf(bytes, QStringLiteral("ferrin_1.3.0_amd64.deb")) };
    MemoryDefaultsStore store;
    UpdateRecords records { store };
    FakeEngine engine;
    FakeInstaller installer;
    UpdateSession session { { .feed = { QUrl(QStringLiteral("https://example.org/feed")),
                                        QByteArray(32, 'k'), QStringLiteral("amd64") },
                              .installedVersion = QStringLiteral("1.2.9"),
                              .folder = folder.path(),
                              .engine = engine,
                              .records = records,
                              .installer = installer } };
    int shown = 0;
};

} // namespace ferrin::test
