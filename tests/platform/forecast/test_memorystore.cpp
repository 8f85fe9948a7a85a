// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/memorystore.h"
#include "tests/support/fulldisk.h"
#include "tests/support/logcapture.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace ferrin;
using namespace std::chrono_literals;

class MemoryStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatWasLearned()
    {
        {
            MemoryStore store(path());
            store.change("a").learnDraw(4, 30min);
            store.change("a").learnCharge({ { 70, 3 }, 50 });
            store.change("a").stop = 80;
            store.saveNow();
        }
        const MemoryStore store(path());
        QVERIFY(std::abs(*store.find("a").draw - 8) < 0.1);
        QCOMPARE(store.find("a").charge->curve.knee, 70.0);
        QCOMPARE(store.find("a").stop, 80);
        QVERIFY(!store.find("b").draw);
    }

    void countsTheNewestOfManyChargesAQuarter()
    {
        BatteryMemory memory;
        for (int charge = 0; charge < 10; ++charge)
            memory.learnCharge({ { 70, 3 }, 50 });
        memory.learnCharge({ { 80, 3 }, 50 });
        QCOMPARE(memory.charge->curve.knee, 72.5);
        // The second of two counts as much as the first.
        BatteryMemory young;
        young.learnCharge({ { 70, 3 }, 50 });
        young.learnCharge({ { 80, 3 }, 50 });
        QCOMPARE(young.charge->curve.knee, 75.0);
    }

    void isAFewHundredBytesABattery()
    {
        keepsWhatWasLearned();
        QFile file(path());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.size() < 300);
        QVERIFY(!file.readAll().toLower().contains("serial"));
    }

    void doesNotWaitForAPipeInThePlaceOfItsFile()
    {
        QVERIFY(QDir().mkpath(QFileInfo(path()).path()));
        QCOMPARE(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
        test::LogCapture log;
        const MemoryStore store(path());
        QVERIFY(!store.find("a").draw);
        QCOMPARE(log.take().size(), 1);
    }

    void writesAtMostOnceInTenMinutes()
    {
        MemoryStore store(path());
        store.save(1h);
        store.change("a").stop = 80;
        store.save(Hours(1h) + Hours(9min));
        QVERIFY(!QFile::exists(path()));
        store.save(Hours(1h) + Hours(10min));
        QVERIFY(QFile::exists(path()));
        QVERIFY(QFile::remove(path()));
        // Nothing new, nothing written.
        store.save(5h);
        QVERIFY(!QFile::exists(path()));
    }

    void startsAnewFromADamagedFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray("{\"a\": {\"dra");
        QTest::newRow("no object") << QByteArray("[1, 2]");
    }

    void startsAnewFromADamagedFile()
    {
        QFETCH(QByteArray, content);
        put(content);
        test::LogCapture log;
        const MemoryStore store(path());
        QVERIFY(!store.find("a").draw);
        QCOMPARE(log.take().size(), 1);
    }

    void takesNoFigureThatCannotBeRight()
    {
        put(R"({"a":{"draw":1e9,"drawHours":2,"knee":-3,"tail":2,"rate":50,"charges":1,)"
            R"("stop":"x"},"b":7})");
        const MemoryStore store(path());
        QVERIFY(!store.find("a").draw);
        QVERIFY(!store.find("a").charge);
        QVERIFY(!store.find("a").stop);
        QVERIFY(!store.find("b").draw);
    }

    void writesWhatADiskHadNoRoomForOnceItHas()
    {
        test::LogCapture log;
        MemoryStore store(path());
        store.change("a").stop = 80;
        test::setDiskFull(true);
        store.saveNow();
        test::setDiskFull(false);
        QVERIFY(!QFile::exists(path()));
        store.saveNow();
        QCOMPARE(MemoryStore(path()).find("a").stop, 80);
        QCOMPARE(log.take().size(), 1);
    }

    void complainsOnceWhereItCannotWrite()
    {
        test::LogCapture log;
        MemoryStore store(QStringLiteral("/proc/ferrin/batteries.json"));
        for (int i = 0; i < 3; ++i) {
            store.change("a").stop = 80;
            store.saveNow();
        }
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(store.find("a").stop, 80);
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    [[nodiscard]] QString path() const
    {
        return m_folder->filePath(QStringLiteral("state/ferrin/batteries.json"));
    }

    void put(const QByteArray &content) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path()).path()));
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

FERRIN_TEST(QCoreApplication, MemoryStoreTest)
#include "test_memorystore.moc"
