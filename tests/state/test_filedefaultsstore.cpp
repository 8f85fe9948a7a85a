// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filedefaultsstore.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

/// A temporary folder, the store's file in it, and the file's content.
struct Fixture
{
    QTemporaryDir folder;
    QString path = folder.filePath(u"org.ferrin.Test/defaults.json"_s);

    [[nodiscard]] QJsonObject entries() const { return QJsonDocument::fromJson(text()).object(); }

    [[nodiscard]] QByteArray text() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void put(const QByteArray &text) const
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("The test cannot write its file");
    }

    [[nodiscard]] QStringList files() const
    {
        return QDir(QFileInfo(path).path()).entryList(QDir::Files | QDir::Hidden);
    }
};

} // namespace

class FileDefaultsStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersNothingAndWritesNothingWhileNothingIsSet()
    {
        const Fixture f;
        {
            const FileDefaultsStore store(f.path);
            QVERIFY(!store.object(u"appColor"_s).isValid());
        }
        QVERIFY(!QFile::exists(QFileInfo(f.path).path()));
    }

    void keepsEveryTypeForTheNextRun()
    {
        const Fixture f;
        {
            FileDefaultsStore store(f.path);
            store.setObject(u"bool"_s, false);
            store.setObject(u"whole"_s, 65);
            store.setObject(u"number"_s, 61.5);
            store.setObject(u"text"_s, u"1"_s);
            store.setObject(u"data"_s, QByteArray("\"battery1V\""));
        }
        const FileDefaultsStore store(f.path);
        QCOMPARE(store.boolean(u"bool"_s), false);
        QCOMPARE(store.integer(u"whole"_s), 65);
        QCOMPARE(store.number(u"number"_s), 61.5);
        QCOMPARE(store.string(u"text"_s), u"1"_s);
        QCOMPARE(store.data(u"data"_s), QByteArray("\"battery1V\""));
    }

    void readsNoTypeAsAnother()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"bool"_s, true);
        store.setObject(u"number"_s, 1);
        store.setObject(u"text"_s, u"1"_s);
        store.setObject(u"data"_s, QByteArray("1"));
        for (const QString &key : { u"bool"_s, u"number"_s, u"text"_s, u"data"_s }) {
            QCOMPARE(store.boolean(key).has_value(), key == u"bool"_s);
            QCOMPARE(store.integer(key).has_value(), key == u"number"_s);
            QCOMPARE(store.number(key).has_value(), key == u"number"_s);
            QCOMPARE(store.string(key).has_value(), key == u"text"_s);
            QCOMPARE(store.data(key).has_value(), key == u"data"_s);
        }
    }

    void writesInTheSameTurnOfTheEventLoop()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.setObject(u"b"_s, 2);
        QVERIFY(!QFile::exists(f.path));
        QCoreApplication::processEvents();
        QCOMPARE(f.entries(), QJsonObject({ { u"a"_s, 1 }, { u"b"_s, 2 } }));
    }

    void writesWhileThereIsAlwaysAnotherChange()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        QTimer changes;
        int count = 0;
        connect(&changes, &QTimer::timeout, this, [&] { store.setObject(u"a"_s, ++count); });
        changes.start(0);
        QTRY_VERIFY(QFile::exists(f.path));
    }

    void writesWhatIsPendingWhenItEnds()
    {
        const Fixture f;
        {
            FileDefaultsStore store(f.path);
            store.setObject(u"a"_s, 1);
        }
        QCOMPARE(f.entries(), QJsonObject({ { u"a"_s, 1 } }));
    }

    void writesOneEntryALineAndLeavesNoOtherFile()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"b"_s, QByteArray("x"));
        store.setObject(u"a"_s, u"line\nbreak"_s);
        store.flush();
        QCOMPARE(f.text(),
                 QByteArray("{\n\"a\":\"line\\nbreak\",\n\"b\":{\"data\":\"eA==\"}\n}\n"));
        QCOMPARE(f.files(), QStringList { u"defaults.json"_s });
    }

    void doesNotWriteAValueThatIsThere()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 48.0F);
        store.flush();
        QSignalSpy changed(&store, &FileDefaultsStore::changed);
        QVERIFY(QFile::remove(f.path));

        store.setObject(u"a"_s, 48);
        store.setObject(u"a"_s, 48.0);
        store.removeObject(u"never"_s);
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(f.path));
        QCOMPARE(changed.size(), 0);
    }

    void tellsOfEveryChangeOnce()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        QSignalSpy changed(&store, &FileDefaultsStore::changed);

        store.setObject(u"a"_s, true);
        store.setObject(u"a"_s, 1);
        store.removeObject(u"a"_s);
        store.flush();
        QCOMPARE(changed.size(), 3);
        QCOMPARE(changed.first(), QVariantList { u"a"_s });
    }

    void answersTheRegisteredDefaultWhileNothingIsStored()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        store.registerDefaults({ { u"width"_s, 48.0 } });
        QCOMPARE(store.number(u"width"_s), 48.0);
        store.setObject(u"width"_s, 60);
        QCOMPARE(store.number(u"width"_s), 60.0);
        store.removeObject(u"width"_s);
        QCOMPARE(store.number(u"width"_s), 48.0);
        store.flush();
        QCOMPARE(f.entries(), QJsonObject());
    }

    void keepsEntriesThatItDoesNotUnderstand()
    {
        const Fixture f;
        f.put(R"({"null": null, "list": [1], "new": {"date": "2030"}, "a": 1})");
        FileDefaultsStore store(f.path);
        QVERIFY(!store.object(u"null"_s).isValid());
        QVERIFY(!store.object(u"list"_s).isValid());
        QVERIFY(!store.object(u"new"_s).isValid());

        QJsonObject expected = f.entries();
        store.setObject(u"a"_s, 2);
        store.flush();
        expected.insert(u"a"_s, 2);
        QCOMPARE(f.entries(), expected);
    }

    void neverLosesTheKeysOfAnotherStoreOnTheSameFile()
    {
        const Fixture f;
        FileDefaultsStore one(f.path);
        FileDefaultsStore other(f.path);
        one.setObject(u"one"_s, 1);
        one.setObject(u"both"_s, u"one"_s);
        one.flush();
        other.setObject(u"other"_s, 2);
        other.flush();
        QCOMPARE(f.entries(),
                 QJsonObject({ { u"one"_s, 1 }, { u"other"_s, 2 }, { u"both"_s, u"one"_s } }));

        other.removeObject(u"both"_s);
        other.flush();
        one.setObject(u"one"_s, 3);
        one.flush();
        QCOMPARE(f.entries(), QJsonObject({ { u"one"_s, 3 }, { u"other"_s, 2 } }));
    }

    void takesOverWhatAnotherStoreWroteWhenItWrites()
    {
        const Fixture f;
        FileDefaultsStore one(f.path);
        FileDefaultsStore other(f.path);
        other.setObject(u"a"_s, 1);
        other.flush();
        QVERIFY(!one.object(u"a"_s).isValid());

        QSignalSpy changed(&one, &FileDefaultsStore::changed);
        one.setObject(u"b"_s, 2);
        one.flush();
        QCOMPARE(one.integer(u"a"_s), 1);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.last(), QVariantList { u"a"_s });
    }

    void writesAllItKnowsWhenTheFileWasDeleted()
    {
        const Fixture f;
        FileDefaultsStore store(f.path);
        store.setObject(u"a"_s, 1);
        store.flush();
        QVERIFY(QFile::remove(f.path));
        store.setObject(u"b"_s, 2);
        store.flush();
        QCOMPARE(f.entries(), QJsonObject({ { u"a"_s, 1 }, { u"b"_s, 2 } }));
    }

    void writesThroughALink()
    {
        const Fixture f;
        const QString real = f.folder.filePath(u"elsewhere.json"_s);
        f.put("{\"a\":1}");
        QVERIFY(QFile::rename(f.path, real));
        QVERIFY(QFile::link(real, f.path));
        FileDefaultsStore store(f.path);
        QCOMPARE(store.integer(u"a"_s), 1);
        store.setObject(u"a"_s, 2);
        store.flush();
        QVERIFY(QFileInfo(f.path).isSymLink());
        QVERIFY(!QFileInfo(real).isSymLink());
        QCOMPARE(f.entries(), QJsonObject({ { u"a"_s, 2 } }));
    }

    void opensTheSuitesFileInTheConfigurationFolder()
    {
        const Fixture f;
        const auto store = FileDefaultsStore::open(f.folder.path(), u"org.ferrin.Test"_s);
        store->setObject(u"a"_s, 1);
        store->flush();
        QCOMPARE(f.entries(), QJsonObject({ { u"a"_s, 1 } }));
    }
};

FERRIN_TEST(QCoreApplication, FileDefaultsStoreTest)
#include "test_filedefaultsstore.moc"
