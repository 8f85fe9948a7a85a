// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/xembed/traycolors.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <array>

using namespace ferrin;

class TrayColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheTextAmongTheTraysColors();
    void ignoresTrayColorsOfAnotherShape();
};

void TrayColorsTest::readsTheTextAmongTheTraysColors()
{
    const std::array<quint32, 12> announced { 0xeeee, 0xeeee, 0xecec, 1, 2, 3, 4, 5, 6, 7, 8, 9 };
    QCOMPARE(textAmongTrayColors(announced), std::optional(QColor(0xee, 0xee, 0xec)));
}

void TrayColorsTest::ignoresTrayColorsOfAnotherShape()
{
    QVERIFY(!textAmongTrayColors({}));
    const std::array<quint32, 3> tooFew { 1, 2, 3 };
    QVERIFY(!textAmongTrayColors(tooFew));
    const std::array<quint32, 12> tooLarge { 0x10000, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 };
    QVERIFY(!textAmongTrayColors(tooLarge));
}

FERRIN_TEST(QGuiApplication, TrayColorsTest)
#include "test_traycolors.moc"
