// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/filereplacement.h"
#include "tests/state/filefaults.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <sys/stat.h>

using namespace ferrin;
using namespace ferrin::test;

class FileReplacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesAFileAsOthersAreMade()
    {
        const FaultyFile f;
        const mode_t before = umask(027);
        QCOMPARE(replaceFile(f.path, "new"), QString());
        umask(before);
        QCOMPARE(f.text(), QByteArray("new"));
        QCOMPARE(mode(f.path), 0640U);
    }

    void keepsThePermissionsOfTheFile()
    {
        const FaultyFile f;
        f.put("old");
        QVERIFY(chmod(f.path.toLocal8Bit().constData(), 0604) == 0);
        QCOMPARE(replaceFile(f.path, "new"), QString());
        QCOMPARE(f.text(), QByteArray("new"));
        QCOMPARE(mode(f.path), 0604U);
    }

    void leavesTheFileAndNothingElseWhenThereIsNoRoom()
    {
        const FaultyFile f;
        f.put("old");
        {
            const DiskIsFull full;
            QCOMPARE(replaceFile(f.path, "longer than there is room for"),
                     QStringLiteral("File too large"));
        }
        QCOMPARE(f.text(), QByteArray("old"));
        QCOMPARE(f.files(), QStringList { QStringLiteral("defaults.json") });
    }

    void leavesNothingWhenTheFileCannotBeReplaced()
    {
        const FaultyFile f;
        QVERIFY(QDir().mkpath(f.path + QStringLiteral("/inside")));
        QVERIFY(!replaceFile(f.path, "new").isNull());
        QVERIFY(f.files().isEmpty());
    }

private:
    static uint mode(const QString &path)
    {
        struct stat status
        {
        };
        return ::stat(path.toLocal8Bit().constData(), &status) == 0 ? status.st_mode & 0777 : 0;
    }
};

FERRIN_TEST(QCoreApplication, FileReplacementTest)
#include "test_filereplacement.moc"
