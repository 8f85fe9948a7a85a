// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatefailure.h"

#include <QSet>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class TestUpdateFailure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasPlainWordsAndANameForEach();
    void knowsNoOtherNames();

private:
    static constexpr auto last = UpdateFailure::noInstaller;
};

void TestUpdateFailure::hasPlainWordsAndANameForEach()
{
    QSet<QString> words;
    for (int i = 0; i <= static_cast<int>(last); ++i) {
        const auto failure = static_cast<UpdateFailure>(i);
        QVERIFY2(plainWords(failure).endsWith(u'.'), qPrintable(rawValue(failure)));
        QCOMPARE(updateFailureFromRawValue(rawValue(failure)), failure);
        words.insert(plainWords(failure));
    }
    QCOMPARE(words.size(), static_cast<int>(last) + 1);
}

void TestUpdateFailure::knowsNoOtherNames()
{
    QVERIFY(!updateFailureFromRawValue(u""_s));
    QVERIFY(!updateFailureFromRawValue(u"DISKFULL"_s));
}

QTEST_GUILESS_MAIN(TestUpdateFailure)
#include "test_updatefailure.moc"
