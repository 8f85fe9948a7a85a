// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/windowplace.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class WindowPlaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isReadAsItWasWritten()
    {
        for (const WindowPlace &place :
             { WindowPlace { .screen = u"eDP-1"_s, .corner = { 12, 340 } },
               WindowPlace { .screen = u"A screen with blanks"_s, .corner = { -7, 0 } },
               WindowPlace { .screen = {}, .corner = { 0, 0 } } }) {
            QCOMPARE(windowPlaceIn(toText(place)), place);
        }
    }

    void isAbsentInAnyOtherText()
    {
        for (const QString &text : { u""_s, u"12"_s, u"12 "_s, u"x 34 eDP-1"_s, u"12 3.5 eDP-1"_s,
                                     u"12 99999999999 eDP-1"_s, u"12  34 a"_s }) {
            QVERIFY2(!windowPlaceIn(text), qPrintable(text));
        }
    }

    void staysWithinWhatTheScreenHasAvailable_data()
    {
        QTest::addColumn<QPoint>("kept");
        QTest::addColumn<QPoint>("corner");
        QTest::newRow("inside") << QPoint(900, 100) << QPoint(900, 100);
        QTest::newRow("below the panel") << QPoint(900, 10) << QPoint(900, 30);
        QTest::newRow("left of the screen") << QPoint(700, 100) << QPoint(800, 100);
        QTest::newRow("beyond the other corner") << QPoint(1500, 590) << QPoint(1300, 300);
    }

    void staysWithinWhatTheScreenHasAvailable()
    {
        QFETCH(QPoint, kept);
        QFETCH(QPoint, corner);
        QCOMPARE(keptWithin(kept, { 300, 300 }, { 800, 30, 800, 570 }), corner);
    }

    void beginsAtTheCornerOfAScreenThatIsSmaller()
    {
        QCOMPARE(keptWithin({ 50, 60 }, { 700, 500 }, { 0, 30, 640, 450 }), QPoint(0, 30));
    }

    void standsInTheMiddleOtherwise()
    {
        QCOMPARE(centredIn({ 800, 30, 800, 570 }, { 300, 300 }), QPoint(1050, 165));
    }
};

FERRIN_TEST(QCoreApplication, WindowPlaceTest)
#include "test_windowplace.moc"
