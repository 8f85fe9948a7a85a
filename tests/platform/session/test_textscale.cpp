// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/textscale.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;

class TextScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneAtTheDesktopsUsualSizes()
    {
        QCOMPARE(textScaleOf({}), 1.0);
        QCOMPARE(textScaleOf({ .kdePoints = 10 }), 1.0);
        QCOMPARE(textScaleOf({ .gnomePoints = 11, .gnomeFactor = 1 }), 1.0);
    }

    void growsWithTheFontAndWithTheFactor()
    {
        QCOMPARE(textScaleOf({ .gnomeFactor = 1.25 }), 1.25);
        QCOMPARE(textScaleOf({ .gnomePoints = 13.2 }), 1.2);
        QCOMPARE(textScaleOf({ .gnomePoints = 22, .gnomeFactor = 1.25 }), 2.5);
        QCOMPARE(textScaleOf({ .kdePoints = 15 }), 1.5);
    }

    void takesKdesFontBeforeTheOther()
    {
        QCOMPARE(textScaleOf({ .kdePoints = 15, .gnomePoints = 22 }), 1.5);
    }

    void neverShrinksAndNeverGrowsBeyondReason()
    {
        QCOMPARE(textScaleOf({ .kdePoints = 6 }), 1.0);
        QCOMPARE(textScaleOf({ .gnomeFactor = 0.5 }), 1.0);
        QCOMPARE(textScaleOf({ .kdePoints = 72, .gnomeFactor = 3 }), 3.0);
    }

    void leavesToTheXServerWhatItDoesAlready()
    {
        // The factor alone, and on a screen of twice the pixels.
        QCOMPARE(textScaleOf({ .gnomeFactor = 1.25 }, 1.25), 1.0);
        QCOMPARE(textScaleOf({ .gnomeFactor = 1.25 }, 2.5), 1.0);
        // A server that knows nothing of the factor.
        QCOMPARE(textScaleOf({ .gnomeFactor = 1.5 }, 1), 1.5);
        // No server knows the size of the font.
        QCOMPARE(textScaleOf({ .kdePoints = 15 }, 2), 1.5);
    }
};

FERRIN_TEST(void, TextScaleTest)
#include "test_textscale.moc"
