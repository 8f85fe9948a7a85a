// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filelock.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace ferrin;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FileLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isHeldByOneAtATime()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"lock"_s);
        {
            const FileLock one(path, 0ms);
            QVERIFY(one.isHeld());
            QVERIFY(!FileLock(path, 0ms).isHeld());
        }
        QVERIFY(FileLock(path, 0ms).isHeld());
    }

    void leavesNoFile()
    {
        const QTemporaryDir folder;
        QVERIFY(FileLock(folder.filePath(u"lock"_s), 0ms).isHeld());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void takesUpAFileThatWasLeft()
    {
        const QTemporaryDir folder;
        QFile left(folder.filePath(u"lock"_s));
        QVERIFY(left.open(QIODevice::WriteOnly) && left.write("12345") == 5);
        QVERIFY(FileLock(left.fileName(), 0ms).isHeld());
        QVERIFY(!left.exists());
    }

    void doesNotWaitWhereNoneCanBeHad()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"lock"_s);
        // If it waited, the test would exceed its time limit.
        QVERIFY(!FileLock(path + u"/missing"_s, 1h).isHeld());
        QVERIFY(QDir().mkdir(path));
        QVERIFY(!FileLock(path, 1h).isHeld());
        QVERIFY(QFileInfo(path).isDir());
    }

    void isNeverHeldByTwoOfManyThatWaitForIt()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"lock"_s);
        constexpr int turns = 200;
        std::atomic<int> holders = 0;
        std::atomic<int> most = 0;
        std::vector<std::thread> threads(4);
        for (std::thread &thread : threads) {
            thread = std::thread([&] {
                for (int turn = 0; turn < turns; ++turn) {
                    const FileLock lock(path, 1h);
                    most = std::max(most.load(), ++holders);
                    std::this_thread::yield();
                    --holders;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(most.load(), 1);
    }
};

FERRIN_TEST(QCoreApplication, FileLockTest)
#include "test_filelock.moc"
