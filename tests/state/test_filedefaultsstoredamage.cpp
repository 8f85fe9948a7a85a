// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filedefaultsstore.h"
#include "tests/state/filefaults.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QScopeGuard>
#include <QTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

using Fixture = FaultyFile;

class FileDefaultsStoreDamageTest : public QObject
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

    void keepsTheWholeEntriesOfAFileThatWasCutAnywhere_data()
    {
        QTest::addColumn<QByteArray>("behind");
        QTest::newRow("truncated") << QByteArray();
        QTest::newRow("filled with zeros") << QByteArray(64, '\0');
    }

    void keepsTheWholeEntriesOfAFileThatWasCutAnywhere()
    {
        QFETCH(QByteArray, behind);
        const QByteArrayList lines { R"("appColor":"dark")",
                                     R"("icon":{"data":"ImJhdHRlcnkyViI="})", R"("showIcon":false)",
                                     R"("width":61.25)" };
        const QByteArray text = "{\n" + lines.join(",\n") + "\n}\n";
        const QVariantMap values { { u"appColor"_s, u"dark"_s },
                                   { u"icon"_s, QByteArray("\"battery2V\"") },
                                   { u"showIcon"_s, false },
                                   { u"width"_s, 61.25 } };
        for (qsizetype length = 0; length < text.size() - 2; ++length) {
            Fixture f;
            const QByteArray left = text.first(length);
            f.put(left + behind);
            const FileDefaultsStore store(f.path);
            QCOMPARE(f.log.take(), QStringList { f.wasSetAside(1) });
            for (qsizetype i = 0; i < lines.size(); ++i) {
                const QString key = values.keys().at(i);
                const QVariant value = store.object(key);
                QVERIFY2(!value.isValid() || value == values.value(key), left.constData());
                if (behind.isEmpty() ? left.contains(lines.at(i) + (i == 3 ? "\n" : ","))
                                     : left.contains(lines.at(i) + (i == 3 ? "\n" : ",\n")))
                    QVERIFY2(value.isValid(), left.constData());
            }
        }
    }

    void keepsAllOfAFileThatLacksOnlyItsLastLineBreak()
    {
        Fixture f;
        f.put("{\n\"a\":12\n}");
        const FileDefaultsStore store(f.path);
        QCOMPARE(store.integer(u"a"_s), 12);
        QCOMPARE(f.files(), QStringList { u"defaults.json"_s });
    }

    void takesUpWhereAProcessEndedWhileItSetTheFileAside()
    {
        Fixture f;
        f.put("{\n\"a\":1,\n");
        QVERIFY(::link(f.path.toLocal8Bit().constData(),
                       (f.path + u".damaged-1"_s).toLocal8Bit().constData())
                == 0);
        const FileDefaultsStore store(f.path);
        QCOMPARE(f.log.take(), QStringList { f.wasSetAside(1) });
        QCOMPARE(store.integer(u"a"_s), 1);
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1\n}\n"));
        QCOMPARE(f.files(), QStringList({ u"defaults.json"_s, u"defaults.json.damaged-1"_s }));
    }

    void setsAsideWhatALinkPointsTo()
    {
        Fixture f;
        f.put("damaged");
        const QString real = f.folder.filePath(u"elsewhere"_s);
        QVERIFY(QFile::rename(f.path, real));
        QVERIFY(QFile::link(real, f.path));
        const FileDefaultsStore store(f.path);
        QCOMPARE(f.log.take(), QStringList { f.wasSetAside(1) });
        QCOMPARE(f.text(u"defaults.json.damaged-1"_s), QByteArray("damaged"));
        QVERIFY(!QFileInfo(f.path + u".damaged-1"_s).isSymLink());
        QVERIFY(QFileInfo(f.path).isSymLink());
        QCOMPARE(f.text(u"elsewhere"_s), QByteArray("{\n\n}\n"));
    }

    void leavesADamagedFileInItsPlaceWhileTheDiskIsFull()
    {
        Fixture f;
        const QByteArray damaged = "{\n\"a\":1,\n\"z\":0,\n";
        f.put(damaged);
        std::unique_ptr<FileDefaultsStore> store;
        {
            const DiskIsFull full;
            store = std::make_unique<FileDefaultsStore>(f.path);
            setTwo(*store);
        }
        QCOMPARE(f.log.take(), QStringList { f.trouble(u"File too large"_s) });
        QCOMPARE(f.text(), damaged);
        QCOMPARE(f.files(), QStringList { u"defaults.json"_s });

        store->flush();
        QCOMPARE(f.log.take(), QStringList { f.wasSetAside(1) });
        QCOMPARE(f.text(), QByteArray("{\n\"a\":7,\n\"b\":\"x\",\n\"z\":0\n}\n"));
        QCOMPARE(f.text(u"defaults.json.damaged-1"_s), damaged);
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
        const QByteArray folder = f.folder.path().toLocal8Bit();
        QVERIFY(chmod(folder.constData(), 0500) == 0);
        // For the folder to be removed, when the test is not run by root.
        const auto rights = qScopeGuard([&] { QVERIFY(chmod(folder.constData(), 0700) == 0); });
        FileDefaultsStore store(f.path);
        QCOMPARE(store.integer(u"a"_s), 1);
        setTwo(store);
        QCOMPARE(f.log.take(),
                 QStringList { f.trouble(u"It is damaged and cannot be set aside"_s) });
        QCOMPARE(f.text(), QByteArray("{\n\"a\":1,\n"));
    }
};

FERRIN_TEST(QCoreApplication, FileDefaultsStoreDamageTest)
#include "test_filedefaultsstoredamage.moc"
