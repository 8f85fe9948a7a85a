// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filedefaultsstore.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <cstdio>
#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int keysOfAProcess = 40;

/// The second process: sets keys of its own, with one write each.
void writeKeys(const QString &path, const QString &prefix)
{
    FileDefaultsStore store(path);
    for (int i = 0; i < keysOfAProcess; ++i) {
        store.setObject(prefix + QString::number(i), i);
        store.flush();
        QThread::msleep(2);
    }
}

/// The process that is killed: counts, and prints the number that has reached the file.
void countForEver(const QString &path)
{
    FileDefaultsStore store(path);
    for (qint64 i = store.integer(u"count"_s).value_or(0) + 1;; ++i) {
        store.setObject(u"count"_s, i);
        store.flush();
        std::printf("%lld\n", i);
        std::fflush(stdout);
    }
}

std::unique_ptr<QProcess> start(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(), arguments);
    return process;
}

qint64 lastLine(QProcess &process)
{
    const QByteArrayList lines = process.readAllStandardOutput().trimmed().split('\n');
    return lines.last().toLongLong();
}

} // namespace

class FileDefaultsStoreProcessesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesNoKeyWhileTwoProcessesWrite()
    {
        const LogCapture log;
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"suite/defaults.json"_s);
        const auto one = start({ u"keys"_s, path, u"one"_s });
        const auto other = start({ u"keys"_s, path, u"other"_s });
        QVERIFY(one->waitForFinished());
        QVERIFY(other->waitForFinished());
        QCOMPARE(one->exitCode(), 0);
        QCOMPARE(other->exitCode(), 0);

        const FileDefaultsStore store(path);
        for (int i = 0; i < keysOfAProcess; ++i) {
            QCOMPARE(store.integer(u"one"_s + QString::number(i)), i);
            QCOMPARE(store.integer(u"other"_s + QString::number(i)), i);
        }
        QCOMPARE(QDir(QFileInfo(path).path()).entryList(QDir::Files),
                 QStringList { u"defaults.json"_s });
    }

    void holdsTheOldOrTheNewValueAfterAKill()
    {
        const LogCapture log;
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"defaults.json"_s);
        qint64 before = 0;
        for (int time = 0; time < 12; ++time) {
            const auto process = start({ u"count"_s, path });
            QVERIFY(process->waitForReadyRead());
            QThread::usleep(static_cast<unsigned long>(1000 + 700 * time));
            process->kill();
            QVERIFY(process->waitForFinished());

            const FileDefaultsStore store(path);
            const qint64 said = lastLine(*process);
            const qint64 held = store.integer(u"count"_s).value_or(-1);
            QVERIFY(said > before);
            QVERIFY2(held == said || held == said + 1,
                     qPrintable(u"said %1, held %2"_s.arg(said).arg(held)));
            before = held;
        }
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"keys"_s)
        writeKeys(arguments.value(2), arguments.value(3));
    else if (arguments.value(1) == u"count"_s)
        countForEver(arguments.value(2));
    else {
        FileDefaultsStoreProcessesTest test;
        return QTest::qExec(&test, argc, argv);
    }
    return 0;
}

#include "test_filedefaultsstoreprocesses.moc"
