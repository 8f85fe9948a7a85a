// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/icon.h"
#include "tests/support/testmain.h"

#include <QSet>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

static_assert(BatteryStyle {} == BatteryStyle::normal);

class IconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsFiftyTwoIconsFromTheFirstGlyphToTheLastOutlet()
    {
        QCOMPARE(allIcons().size(), 52U);
        QCOMPARE(allIcons().front(), Icon::battery1V);
        QCOMPARE(allIcons().back(), Icon::poweroutletTypeGFill);
    }

    void givesEveryIconItsOwnRawValueAndFindsItAgain()
    {
        QSet<QString> seen;
        for (const Icon icon : allIcons()) {
            seen.insert(rawValue(icon));
            QCOMPARE(iconFromRawValue(rawValue(icon)), icon);
        }
        QCOMPARE(seen.size(), 52);
    }

    void decodesToNoIcon_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << u""_s;
        QTest::newRow("misspelt") << u"battery1v"_s;
        QTest::newRow("the case's name instead of its value") << u"arrowUpSquare"_s;
        QTest::newRow("surrounded by blanks") << u" bolt "_s;
        QTest::newRow("a prefix") << u"bolt."_s;
    }

    void decodesToNoIcon()
    {
        QFETCH(QString, text);
        QCOMPARE(iconFromRawValue(text), std::nullopt);
    }

    void namesSymbolsByTheirImages_data()
    {
        QTest::addColumn<Icon>("icon");
        QTest::addColumn<QString>("name");
        QTest::newRow("0") << Icon::battery1V << u"battery1V"_s;
        QTest::newRow("5") << Icon::battery2HWithBolt << u"battery2HWithBolt"_s;
        QTest::newRow("8") << Icon::battery2HInvertedWithBolt << u"battery2HInvertedWithBolt"_s;
        QTest::newRow("11") << Icon::battery2HBlackWithBolt << u"battery2HBlackWithBolt"_s;
        QTest::newRow("12") << Icon::arrowUpSquare << u"arrow.up.square"_s;
        QTest::newRow("19") << Icon::arrowshapeUpFill << u"arrowshape.up.fill"_s;
        QTest::newRow("23") << Icon::arrowtriangleUpSquareFill << u"arrowtriangle.up.square.fill"_s;
        QTest::newRow("24") << Icon::arrowDownSquare << u"arrow.down.square"_s;
        QTest::newRow("35") << Icon::arrowtriangleDownSquareFill
                            << u"arrowtriangle.down.square.fill"_s;
        QTest::newRow("36") << Icon::arrowUpToLineCircle << u"arrow.up.to.line.circle"_s;
        QTest::newRow("40") << Icon::bolt << u"bolt"_s;
        QTest::newRow("47") << Icon::poweroutletTypeAFill << u"poweroutlet.type.a.fill"_s;
        QTest::newRow("51") << Icon::poweroutletTypeGFill << u"poweroutlet.type.g.fill"_s;
    }

    void namesSymbolsByTheirImages()
    {
        QFETCH(Icon, icon);
        QFETCH(QString, name);
        QCOMPARE(rawValue(icon), name);
        QCOMPARE(static_cast<int>(icon), QString::fromLatin1(QTest::currentDataTag()).toInt());
    }

    void callsExactlyTheFirstTwelveGlyphs()
    {
        for (const Icon icon : allIcons())
            QCOMPARE(isGlyph(icon), static_cast<int>(icon) < 12);
    }
};

FERRIN_TEST(void, IconTest)
#include "test_icon.moc"
