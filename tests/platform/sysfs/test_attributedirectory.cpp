// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/attributedirectory.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class AttributeDirectoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsEveryEntryOfALargeFolder();
    void leavesOutHiddenEntries();
    void hasNoEntriesWhereThereIsNoFolder();
};

void AttributeDirectoryTest::findsEveryEntryOfALargeFolder()
{
    const QTemporaryDir folder;
    std::vector<std::string> expected;
    for (int number = 1000; number < 2000; ++number) {
        const QString name = u"a_supply_%1"_s.arg(number);
        QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        expected.push_back(name.toStdString());
    }
    const AttributeDirectory directory(qPrintable(folder.path()));
    QCOMPARE(directory.entries(), expected);
    // Read anew, not from where the last reading ended.
    QCOMPARE(directory.entries(), expected);
}

void AttributeDirectoryTest::leavesOutHiddenEntries()
{
    const QTemporaryDir folder;
    QVERIFY(QFile(folder.filePath(u".hidden"_s)).open(QIODevice::WriteOnly));
    QVERIFY(QFile(folder.filePath(u"BAT0"_s)).open(QIODevice::WriteOnly));
    QCOMPARE(AttributeDirectory(qPrintable(folder.path())).entries(),
             std::vector<std::string> { "BAT0" });
}

void AttributeDirectoryTest::hasNoEntriesWhereThereIsNoFolder()
{
    const AttributeDirectory directory("/no/such/folder");
    QVERIFY(!directory.exists());
    QVERIFY(directory.entries().empty());
}

FERRIN_TEST(QCoreApplication, AttributeDirectoryTest)
#include "test_attributedirectory.moc"
