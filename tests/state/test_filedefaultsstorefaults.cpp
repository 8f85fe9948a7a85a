// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filedefaultsstore.h"
#include "state/filelock.h"
#include "tests/state/filefaults.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Fixture = FaultyFile;

class FileDefaultsStoreFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesWhatAProcessLeftThatEndedWhileItWrote()
    {
        Fixture f;
        f.putBeside(u".unfinished-aBcDeF"_s);
        const QStringList others { u"defaults.json.backup"_s, u"defaults.json.damaged-1"_s };
        f.putBeside(u".backup"_s);
        f.putBeside(u".damaged-1"_s);
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.flush();
        QCOMPARE(f.files(), QStringList { u"defaults.json"_s } + others);
    }

    void removesNothingThatAnotherProcessMayBeWriting()
    {
        Fixture f;
        f.putBeside(u".unfinished-aBcDeF"_s);
        const FileLock lock(f.path + u".lock"_s, 0ms);
        QVERIFY(lock.isHeld());
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.flush();
        QVERIFY(f.files().contains(u"defaults.json.unfinished-aBcDeF"_s));
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

    void keepsTheChoicesInAFileThatItMayNotReadAtFirst()
    {
        Fixture f;
        const AsOrdinaryUser user(f.folder.path());
        f.put("{\"chosen\":\"old\",\"both\":\"old\"}");
        QVERIFY(chmod(f.path.toLocal8Bit().constData(), 0000) == 0);
        FileDefaultsStore store(f.path);
        store.setMissingObject(u"chosen"_s, u"default"_s);
        store.setMissingObject(u"both"_s, u"default"_s);
        store.setMissingObject(u"none"_s, u"default"_s);
        store.flush();
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Permission denied"_s) });
        QCOMPARE(store.string(u"chosen"_s), u"default"_s);
        // It may equal the default that was stored, but now it is a choice of the user.
        store.setObject(u"both"_s, u"default"_s);

        QVERIFY(chmod(f.path.toLocal8Bit().constData(), 0600) == 0);
        QSignalSpy changed(&store, &FileDefaultsStore::changed);
        store.flush();
        QCOMPARE(changed, QList<QVariantList> { { u"chosen"_s } });
        QCOMPARE(store.string(u"chosen"_s), u"old"_s);
        QCOMPARE(f.text(),
                 QByteArray("{\n\"both\":\"default\",\n\"chosen\":\"old\",\n"
                            "\"none\":\"default\"\n}\n"));
    }

    void putsADefaultOverAValueThatIsOfNoUse()
    {
        Fixture f;
        f.put("{\"a\":[]}");
        FileDefaultsStore store(f.path);
        store.setMissingObject(u"a"_s, 1);
        store.flush();
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1\n}\n"));
    }

    void neverReplacesAFileThatItMayNotWrite()
    {
        Fixture f;
        const AsOrdinaryUser user(f.folder.path());
        f.put("{\"z\":0}");
        QVERIFY(chmod(f.path.toLocal8Bit().constData(), 0400) == 0);
        FileDefaultsStore store(f.path);
        setTwo(store);
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"Permission denied"_s) });
        QCOMPARE(f.text(), QByteArray("{\"z\":0}"));
        QCOMPARE(f.files(), QStringList { u"defaults.json"_s });
    }

    void neverReplacesALinkWhoseFileIsAway()
    {
        Fixture f;
        const QString away = f.folder.filePath(u"away/defaults.json"_s);
        QVERIFY(QFile::link(away, f.path));
        FileDefaultsStore store(f.path);
        setTwo(store);
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"No such file or directory"_s) });
        QVERIFY(QFileInfo(f.path).isSymLink());
        QVERIFY(QDir().mkdir(QFileInfo(away).path()));
        store.flush();
        QCOMPARE(f.text(u"away/defaults.json"_s), QByteArray("{\n\"a\":7,\n\"b\":\"x\"\n}\n"));
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

    void writesByItselfWhenTheDiskHasRoomAgain()
    {
        Fixture f;
        FileDefaultsStore store(f.path);
        {
            const DiskIsFull full;
            store.setObject(u"a"_s, u"a value of some length"_s);
            QStringList said;
            QTRY_VERIFY(!(said += f.log.take()).isEmpty());
            QCOMPARE(said, QStringList { f.trouble(u"File too large"_s) });
        }
        QVERIFY(f.text().isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(f.text(), QByteArray("{\n\"a\":\"a value of some length\"\n}\n"),
                                  60'000);
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
        const FileLock lock(f.path + u".lock"_s, 0ms);
        QVERIFY(lock.isHeld());
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

FERRIN_TEST(QCoreApplication, FileDefaultsStoreFaultsTest)
#include "test_filedefaultsstorefaults.moc"
