// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/statusitemidentity.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class StatusItemIdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysThePosition() { QCOMPARE(StatusItemIdentity::index(0).text(), u"index 0"_s); }

    void saysTheIdentifierInQuotes()
    {
        QCOMPARE(StatusItemIdentity::id(u"main"_s).text(), u"ID \"main\""_s);
    }

    void tellsAPositionFromAnIdentifierOfTheSameText()
    {
        QVERIFY(StatusItemIdentity::index(1) != StatusItemIdentity::id(u"1"_s));
        QVERIFY(StatusItemIdentity::index(1) == StatusItemIdentity::index(1));
    }
};

FERRIN_TEST(QCoreApplication, StatusItemIdentityTest)
#include "test_statusitemidentity.moc"
