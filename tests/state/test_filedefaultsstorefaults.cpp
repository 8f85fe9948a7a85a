// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filedefaultsstore.h"
#include "tests/state/filefaults.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

struct Fixture
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"defaults.json"_s);
    LogCapture log;

    void put(const QByteArray &text) const
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("The test cannot write its file");
    }

    [[nodiscard]] QByteArray text(const QString &name = u"defaults.json"_s) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] QString trouble(const QString &why) const
    {
        return u"error: Unable to keep the defaults store %1: %2"_s.arg(path, why);
    }

    [[nodiscard]] QString wasSetAside(int number) const
    {
        return u"error: The defaults store %1 is damaged and was set aside as %1.damaged-%2"_s
            .arg(path)
            .arg(number);
    }
};

/// Sets two values with a write each: the trouble is told once, the values are answered.
void setTwo(FileDefaultsStore &store)
{
    store.setObject(u"a"_s, 7);
    store.flush();
    store.setObject(u"b"_s, u"x"_s);
    store.flush();
    QCOMPARE(store.integer(u"a"_s), 7);
    QCOMPARE(store.string(u"b"_s), u"x"_s);
}

} // namespace

class FileDefaultsStoreFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsADamagedFileAsideAndKeepsWhatItStillSays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("hasA");
        QTest::addColumn<bool>("hasZ");
        const QByteArray a = "\"a\":1,\n";
        const QByteArray z = "\"z\":{\"data\":\"eA==\"}\n}\n";
        QTest::newRow("empty") << QByteArray() << false << false;
        QTest::newRow("zeros") << QByteArray(4096, '\0') << false << false;
        QTest::newRow("no JSON") << QByteArray("hello\nworld") << false << false;
        QTest::newRow("an array") << QByteArray("[1, 2]") << false << false;
        QTest::newRow("cut in an entry") << "{\n" + a + "\"z\":{\"da" << true << false;
        QTest::newRow("cut after an entry") << "{\n" + a << true << false;
        QTest::newRow("bytes that are no UTF-8")
            << "{\n" + a + "\"m\":\"\xff\xfe\",\n" + z << true << true;
        QTest::newRow("garbage in the middle") << "{\n" + a + "\x01}{,,\n" + z << true << true;
        QTest::newRow("something behind") << "{\n" + a + z + "}}" << true << true;
        QTest::newRow("far too large")
            << "{\n" + a + "\"m\":\"" + QByteArray(2 << 20, 'm') + "\",\n" + z << true << false;
        QTest::newRow("nested too deeply")
            << "{\n" + a + "\"m\":" + QByteArray(5000, '[') + "\n" + z << true << true;
    }

    void setsADamagedFileAsideAndKeepsWhatItStillSays()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, hasA);
        QFETCH(bool, hasZ);
        Fixture f;
        f.put(text);
        const FileDefaultsStore store(f.path);

        QCOMPARE(f.log.take(), QStringList { f.wasSetAside(1) });
        QCOMPARE(f.text(u"defaults.json.damaged-1"_s), text);
        QCOMPARE(store.integer(u"a"_s), hasA ? std::optional(1) : std::nullopt);
        QCOMPARE(store.data(u"z"_s), hasZ ? std::optional(QByteArray("x")) : std::nullopt);
        const FileDefaultsStore next(f.path);
        QCOMPARE(next.object(u"a"_s), store.object(u"a"_s));
        QCOMPARE(next.object(u"z"_s), store.object(u"z"_s));
    }

    void neverOverwritesWhatWasSetAsideBefore()
    {
        Fixture f;
        f.put("first");
        FileDefaultsStore store(f.path);
        f.put("second");
        store.setObject(u"a"_s, 1);
        store.flush();

        QCOMPARE(f.log.take(), QStringList({ f.wasSetAside(1), f.wasSetAside(2) }));
        QCOMPARE(f.text(u"defaults.json.damaged-1"_s), QByteArray("first"));
        QCOMPARE(f.text(u"defaults.json.damaged-2"_s), QByteArray("second"));
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1\n}\n"));
    }

    void forgetsNothingWhenTheFileIsDamagedWhileItRuns()
    {
        Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.setObject(u"b"_s, 2);
        store.flush();
        f.put("{\n\"b\":3,\n\"a");
        store.setObject(u"c"_s, 4);
        store.flush();

        QCOMPARE(f.log.take(), QStringList { f.wasSetAside(1) });
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1,\n\"b\":3,\n\"c\":4\n}\n"));
    }

    void keepsADamagedFileThatCannotBeSetAside()
    {
        Fixture f;
        f.put("{\n\"a\":1,\n");
        const AsOrdinaryUser user(f.folder.path());
        QVERIFY(chmod(f.folder.path().toLocal8Bit().constData(), 0500) == 0);
        FileDefaultsStore store(f.path);
        QCOMPARE(store.integer(u"a"_s), 1);
        setTwo(store);
        QCOMPARE(f.log.take(),
                 QStringList { f.trouble(u"It is damaged and cannot be set aside"_s) });
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1,\n"));
    }

    void survivesAFolderInPlaceOfTheFile()
    {
        Fixture f;
        QVERIFY(QDir().mkdir(f.path));
        {
            FileDefaultsStore store(f.path);
            setTwo(store);
        }
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Not a file"_s) });
        QVERIFY(QFileInfo(f.path).isDir());
    }

    void survivesAPipeInPlaceOfTheFile()
    {
        Fixture f;
        QVERIFY(mkfifo(f.path.toLocal8Bit().constData(), 0600) == 0);
        FileDefaultsStore store(f.path);
        setTwo(store);
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Not a file"_s) });
    }

    void survivesALinkToADevice()
    {
        Fixture f;
        QVERIFY(QFile::link(u"/dev/full"_s, f.path));
        FileDefaultsStore store(f.path);
        setTwo(store);
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Not a file"_s) });
    }

    void survivesAFileInPlaceOfTheFolder()
    {
        Fixture f;
        f.put("not a folder");
        f.path += u"/defaults.json"_s;
        FileDefaultsStore store(f.path);
        setTwo(store);
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Not a directory"_s) });
    }

    void neverReplacesAFileThatItMayNotRead()
    {
        Fixture f;
        const AsOrdinaryUser user(f.folder.path());
        f.put("{\"a\":1}");
        QVERIFY(chmod(f.path.toLocal8Bit().constData(), 0000) == 0);
        FileDefaultsStore store(f.path);
        QVERIFY(!store.object(u"a"_s).isValid());
        store.setObject(u"b"_s, 2);
        store.flush();
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Permission denied"_s) });

        QVERIFY(chmod(f.path.toLocal8Bit().constData(), 0600) == 0);
        QCOMPARE(f.text(), QByteArray("{\"a\":1}"));
        store.setObject(u"c"_s, 3);
        store.flush();
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1,\n\"b\":2,\n\"c\":3\n}\n"));
        QCOMPARE(store.integer(u"a"_s), 1);
    }

    void keepsValuesWhileTheFolderIsReadOnlyAndWritesThemAfterwards()
    {
        Fixture f;
        const AsOrdinaryUser user(f.folder.path());
        f.put("{\"z\":0}");
        QVERIFY(chmod(f.folder.path().toLocal8Bit().constData(), 0500) == 0);
        FileDefaultsStore store(f.path);
        setTwo(store);
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Permission denied"_s) });
        QCOMPARE(f.text(), QByteArray("{\"z\":0}"));

        QVERIFY(chmod(f.folder.path().toLocal8Bit().constData(), 0700) == 0);
        store.setObject(u"c"_s, true);
        store.flush();
        QCOMPARE(f.text(), QByteArray("{\n\"a\":7,\n\"b\":\"x\",\n\"c\":true,\n\"z\":0\n}\n"));
    }

    void keepsValuesWhileTheDiskIsFullAndWritesThemAfterwards()
    {
        Fixture f;
        f.put("{\"z\":0}");
        FileDefaultsStore store(f.path);
        {
            const DiskIsFull full;
            setTwo(store);
        }
        QCOMPARE(f.text(), QByteArray("{\"z\":0}"));
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"File too large"_s) });
        store.removeObject(u"z"_s);
        store.flush();
        QCOMPARE(f.text(), QByteArray("{\n\"a\":7,\n\"b\":\"x\"\n}\n"));
        QCOMPARE(QDir(f.folder.path()).entryList(QDir::Files), QStringList { u"defaults.json"_s });
    }

    void tellsOfATroubleThatComesBack()
    {
        Fixture f;
        FileDefaultsStore store(f.path);
        for (int time = 0; time < 2; ++time) {
            QVERIFY(QDir().mkdir(f.path));
            store.setObject(u"a"_s, time);
            store.flush();
            QCOMPARE(f.log.take(), QStringList { f.trouble(u"Not a file"_s) });
            QVERIFY(QDir().rmdir(f.path));
            store.setObject(u"b"_s, time);
            store.flush();
            QCOMPARE(f.log.take(), QStringList());
            QVERIFY(QFile::remove(f.path));
        }
    }

    void writesWithoutALockThatCannotBeHad()
    {
        Fixture f;
        QLockFile lock(f.path + u".lock"_s);
        QVERIFY(lock.lock());
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.flush();
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1\n}\n"));
    }

    void passesAFolderInPlaceOfTheLock()
    {
        Fixture f;
        QVERIFY(QDir().mkdir(f.path + u".lock"_s));
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.flush();
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1\n}\n"));
    }

    void refusesAValueThatItCouldNotGiveBack()
    {
        Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.setObject(u"a"_s, QVariantList { 1 });
        QCOMPARE(f.log.take(),
                 QStringList {
                     u"error: A value of type QVariantList cannot be stored under the key a"_s });
        QCOMPARE(store.integer(u"a"_s), 1);
    }
};

QTEST_GUILESS_MAIN(FileDefaultsStoreFaultsTest)
#include "test_filedefaultsstorefaults.moc"
