// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A process that learns of a battery without end and is killed, and what is kept then.

#include "platform/linux/power/forecast/memorystore.h"
#include "tests/support/fulldisk.h"
#include "tests/support/kills.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cstdio>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

int next(int charges)
{
    return charges % 999 + 1;
}

/// Whether the disk is full while the process learns this number.
bool isUnwritable(int charges)
{
    return charges % 3 == 0;
}

/// Counts in what is learned, and prints each number that has reached the file.
[[noreturn]] void learnForEver(const QString &path, bool isOftenFull)
{
    const test::LogCapture log;
    MemoryStore store(path);
    for (int charges = next(store.find("a").charges);; charges = next(charges)) {
        const bool isFull = isOftenFull && isUnwritable(charges);
        test::setDiskFull(isFull);
        BatteryMemory &memory = store.change("a");
        memory.charge = ChargeFit::Charge { { 70, 3 }, 50 };
        memory.charges = charges;
        store.saveNow();
        if (isFull)
            continue;
        std::printf("%d\n", charges);
        std::fflush(stdout);
    }
}

int lastLine(QProcess &process)
{
    return process.readAllStandardOutput().trimmed().split('\n').last().toInt();
}

} // namespace

class MemoryKeptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheOldOrTheNewOneAfterAKillAtAnyMoment_data()
    {
        QTest::addColumn<bool>("isOftenFull");
        QTest::newRow("on a disk with room") << false;
        QTest::newRow("on a disk that is full every third time") << true;
    }

    void isTheOldOrTheNewOneAfterAKillAtAnyMoment()
    {
        QFETCH(bool, isOftenFull);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"ferrin/batteries.json"_s);
        QRandomGenerator random(1);
        test::LogCapture log;
        for (int kill = 0; kill < test::killsOr(40); ++kill) {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(),
                          { isOftenFull ? u"learn on a full disk"_s : u"learn"_s, path });
            QVERIFY(process.waitForReadyRead());
            QThread::usleep(random.bounded(5000U));
            process.kill();
            QVERIFY(process.waitForFinished());

            const int said = lastLine(process);
            const int kept = MemoryStore(path).find("a").charges;
            int soon = next(said);
            if (isOftenFull && isUnwritable(soon))
                soon = next(soon);
            QVERIFY2(kept == said || kept == soon,
                     qPrintable(u"said %1, kept %2"_s.arg(said).arg(kept)));
        }
        MemoryStore store(path);
        store.change("a").stop = 80;
        store.saveNow();
        QCOMPARE(QDir(folder.filePath(u"ferrin"_s)).entryList(QDir::Files | QDir::Hidden),
                 QStringList { u"batteries.json"_s });
        QCOMPARE(log.take(), QStringList());
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1).startsWith(u"learn"))
        learnForEver(arguments.value(2), arguments.value(1) != u"learn");
    MemoryKeptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_memorykept.moc"
