// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/programstarter.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Fixture
{
    QTemporaryDir folder;
    QString program = folder.filePath(u"starts"_s);
    DetachedProgramStarter starter;

    Fixture()
    {
        QFile file(program);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n"
                   "readlink /proc/$$/fd/1 /proc/$$/fd/2 > \"$1.part\"\n"
                   "printf '%s\\n' \"$2\" >> \"$1.part\"\n"
                   "mv \"$1.part\" \"$1\"\n");
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }
};

} // namespace

class ProgramStarterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsWhatIsInstalled()
    {
        const Fixture f;
        QVERIFY(f.starter.isInstalled(u"sh"_s));
        QVERIFY(f.starter.isInstalled(f.program));
        QVERIFY(!f.starter.isInstalled(u"no-such-program-of-any-desktop"_s));
    }

    void startsAProgramThatSaysNothingOnOurOutputs()
    {
        Fixture f;
        const QString said = f.folder.filePath(u"said"_s);
        QVERIFY(f.starter.start({ f.program, { said, u"two words"_s } }));
        QTRY_VERIFY(QFile::exists(said));
        QFile file(said);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArrayList lines = file.readAll().split('\n');
        QCOMPARE(lines.value(1), QByteArray("/dev/null"));
        QCOMPARE(lines.value(2), QByteArray("two words"));
    }

    void tellsWhenAProgramDoesNotStart()
    {
        Fixture f;
        QVERIFY(!f.starter.start({ f.folder.filePath(u"missing"_s), {} }));
    }
};

FERRIN_TEST(QCoreApplication, ProgramStarterTest)
#include "test_programstarter.moc"
