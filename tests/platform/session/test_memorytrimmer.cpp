// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/memorytrimmer.h"

#include <QFile>
#include <QLibrary>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

/// How much of the mapped files of this name is in this process's memory, KiB.
int residentOf(const QByteArray &name)
{
    QFile maps(u"/proc/self/smaps"_s);
    if (!maps.open(QIODevice::ReadOnly))
        return -1;
    int sum = 0;
    bool isNamed = false;
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.contains('-') && !line.contains(':'))
            isNamed = false;
        if (line.contains(name))
            isNamed = true;
        else if (line.contains(" /") || line.contains(" ["))
            isNamed = false;
        if (isNamed && line.startsWith("Rss:"))
            sum += line.mid(4).simplified().split(' ').constFirst().toInt();
    }
    return sum;
}

} // namespace

class MemoryTrimmerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dropsTheCodeThatCameLaterAndLeavesItUsable()
    {
        MemoryTrimmer memory;
        memory.rememberLibraries();
        QLibrary library(QString::fromLatin1(FERRIN_SPARE_LIBRARY));
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        const auto answer = reinterpret_cast<int (*)()>(library.resolve("spare_answer"));
        QVERIFY(answer);
        QCOMPARE(answer(), 42);
        const int before = residentOf("spare_library");
        QVERIFY(before > 0);

        memory.trim();
        const int after = residentOf("spare_library");
        QVERIFY2(after < before, qPrintable(u"%1 of %2 KiB"_s.arg(after).arg(before)));
        QCOMPARE(answer(), 42);
    }

    void leavesTheLibrariesOfTheDayAlone()
    {
        MemoryTrimmer memory;
        memory.rememberLibraries();
        const int before = residentOf("libQt6Core");
        QVERIFY(before > 0);
        memory.trim();
        QVERIFY(residentOf("libQt6Core") >= before);
    }
};

QTEST_GUILESS_MAIN(MemoryTrimmerTest)
#include "test_memorytrimmer.moc"
