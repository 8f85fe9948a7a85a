// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/quickengine.h"
#include "tests/quick/named.h"
#include "tests/support/chosenappearance.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class FontsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void haveTheirSizesAndWeights_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("size");
        QTest::addColumn<QFont::Weight>("weight");
        QTest::newRow("13 heavy") << QByteArray("heavy13") << 13 << QFont::ExtraBold;
        QTest::newRow("a title") << QByteArray("title") << 20 << QFont::Bold;
        QTest::newRow("14 bold") << QByteArray("bold14") << 14 << QFont::Bold;
        QTest::newRow("12 regular") << QByteArray("regular12") << 12 << QFont::Normal;
        QTest::newRow("10 regular") << QByteArray("regular10") << 10 << QFont::Normal;
        QTest::newRow("10 semibold") << QByteArray("semibold10") << 10 << QFont::DemiBold;
        // Drawn as small as anything may be.
        QTest::newRow("8 regular") << QByteArray("regular8") << 9 << QFont::Normal;
        QTest::newRow("13 regular") << QByteArray("regular13") << 13 << QFont::Normal;
        QTest::newRow("a card's title") << QByteArray("cardTitle") << 10 << QFont::DemiBold;
        QTest::newRow("a card's value") << QByteArray("cardValue") << 14 << QFont::Bold;
        QTest::newRow("one of two values") << QByteArray("cardPairValue") << 12 << QFont::Bold;
        QTest::newRow("a unit") << QByteArray("cardUnit") << 9 << QFont::DemiBold;
        QTest::newRow("a verdict") << QByteArray("cardVerdict") << 12 << QFont::DemiBold;
        QTest::newRow("a header") << QByteArray("header") << 12 << QFont::Bold;
        QTest::newRow("a caption") << QByteArray("caption") << 9 << QFont::DemiBold;
    }

    void haveTheirSizesAndWeights()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, size);
        QFETCH(QFont::Weight, weight);
        const test::ChosenAppearance appearance;
        QuickEngine engine;
        const QFont font = test::namedFont(engine, name.constData());
        QCOMPARE(font.pixelSize(), size);
        QCOMPARE(font.weight(), weight);
        QCOMPARE(font.family(), appearance.fontFamily());
    }

    void followTheDesktopsFont()
    {
        test::ChosenAppearance appearance;
        QuickEngine engine;
        appearance.setFontFamily(u"Cantarell"_s);
        QCOMPARE(test::namedFont(engine, "regular12").family(), u"Cantarell"_s);
        appearance.setFontFamily(u"Noto Sans"_s);
        QCOMPARE(test::namedFont(engine, "regular12").family(), u"Noto Sans"_s);
    }
};

FERRIN_TEST(QGuiApplication, FontsTest)
#include "test_fonts.moc"
