// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/programfile.h"
#include "tests/support/testmain.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto runnable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// A program that lies where it was when it was started, and who watches it.
struct Installation
{
    Installation()
    {
        write(path);
        file.emplace(path, 20ms);
        replacements = std::make_unique<QSignalSpy>(&*file, &ProgramFile::replaced);
    }

    static void write(const QString &name, QFile::Permissions permissions = runnable)
    {
        QFile written(name);
        QVERIFY(written.open(QIODevice::WriteOnly));
        QVERIFY(written.write("program") > 0);
        QVERIFY(written.setPermissions(permissions));
    }

    /// As package managers do: the old one keeps its other name until all is done.
    void replace(QFile::Permissions permissions = runnable) const
    {
        write(path + u".new"_s, permissions);
        QCOMPARE(link(qPrintable(path), qPrintable(path + u".old"_s)), 0);
        QCOMPARE(rename(qPrintable(path + u".new"_s), qPrintable(path)), 0);
        QVERIFY(QFile::remove(path + u".old"_s));
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"program"_s);
    std::optional<ProgramFile> file;
    std::unique_ptr<QSignalSpy> replacements;
};

} // namespace

class ProgramFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsThatAnotherProgramTookItsPlace();
    void tellsItAgainUntilSomebodyActs();
    void saysNothingWhileNothingHappens();
    void saysNothingOfTheSameFileTouched();
    void saysNothingWhenItIsRemoved();
    void saysNothingOfAFileThatCannotBeRunYet();
    void knowsAReplacementThatNobodyTold();
};

void ProgramFileTest::tellsThatAnotherProgramTookItsPlace()
{
    const Installation f;
    QVERIFY(!f.file->isReplaced());
    f.replace();
    QVERIFY(f.file->isReplaced());
    QVERIFY(f.replacements->isEmpty());
    QTRY_VERIFY(!f.replacements->isEmpty());
}

void ProgramFileTest::tellsItAgainUntilSomebodyActs()
{
    const Installation f;
    f.replace();
    QTRY_VERIFY(f.replacements->size() > 2);
}

void ProgramFileTest::saysNothingWhileNothingHappens()
{
    const Installation f;
    QTest::qWait(100);
    QVERIFY(f.replacements->isEmpty());
}

void ProgramFileTest::saysNothingOfTheSameFileTouched()
{
    const Installation f;
    QVERIFY(QFile::setPermissions(f.path, runnable | QFile::ReadOther));
    QTest::qWait(100);
    QVERIFY(f.replacements->isEmpty());
    QVERIFY(!f.file->isReplaced());
}

void ProgramFileTest::saysNothingWhenItIsRemoved()
{
    const Installation f;
    QVERIFY(QFile::remove(f.path));
    QTest::qWait(100);
    QVERIFY(f.replacements->isEmpty());
    QVERIFY(!f.file->isReplaced());
}

void ProgramFileTest::saysNothingOfAFileThatCannotBeRunYet()
{
    const Installation f;
    f.replace(QFile::ReadOwner | QFile::WriteOwner);
    QTest::qWait(100);
    QVERIFY(f.replacements->isEmpty());
}

void ProgramFileTest::knowsAReplacementThatNobodyTold()
{
    const Installation f;
    // A process that runs a file keeps it.
    QCOMPARE(link(qPrintable(f.path), qPrintable(f.path + u".running"_s)), 0);
    QVERIFY(QFile::remove(f.path));
    QTest::qWait(100);
    Installation::write(f.path);
    QVERIFY(f.file->isReplaced());
}

FERRIN_TEST(QCoreApplication, ProgramFileTest)
#include "test_programfile.moc"
