// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/testmain.h"
#include "updates/updatefailure.h"

#include <QSet>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class UpdateFailureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasPlainWordsAndANameForEach();

private:
    static constexpr auto last = UpdateFailure::nothingDone;
};

void UpdateFailureTest::hasPlainWordsAndANameForEach()
{
    QSet<QString> words;
    for (int i = 0; i <= static_cast<int>(last); ++i) {
        const auto failure = static_cast<UpdateFailure>(i);
        QVERIFY2(plainWords(failure).endsWith(u'.'), qPrintable(logName(failure)));
        QVERIFY(!logName(failure).isEmpty());
        words.insert(plainWords(failure));
    }
    QCOMPARE(words.size(), static_cast<int>(last) + 1);
}

FERRIN_TEST(QCoreApplication, UpdateFailureTest)
#include "test_updatefailure.moc"
