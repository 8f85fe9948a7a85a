// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/journal.h"

#include <QTest>

using namespace ferrin;

class NoJournalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNeverThereInABuildWithoutSystemd()
    {
        QVERIFY(!isJournalRunning());
        QVERIFY(!sendToJournal({ "MESSAGE=text" }));
    }
};

QTEST_APPLESS_MAIN(NoJournalTest)
#include "test_nojournal.moc"
