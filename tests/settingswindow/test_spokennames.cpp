// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/spokennames.h"
#include "tests/support/testmain.h"

#include <QSet>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class SpokenNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyIconHasANameOfItsOwn()
    {
        QSet<QString> names;
        for (const Icon icon : allIcons()) {
            QVERIFY(!spokenName(icon).isEmpty());
            names.insert(spokenName(icon));
        }
        QCOMPARE(names.size(), 52);
    }

    void saysWhatIsSeen()
    {
        QCOMPARE(spokenName(Icon::battery1V), u"Upright battery"_s);
        QCOMPARE(spokenName(Icon::battery2HBlackWithBolt),
                 u"Lying battery with a strong outline and a bolt"_s);
        QCOMPARE(spokenName(Icon::arrowUpSquareFill), u"Arrow up in a filled square"_s);
        QCOMPARE(spokenName(Icon::poweroutletTypeGFill), u"Power outlet of type G, filled"_s);
    }

    /// A table by position is wrong from one slip on.
    void namesEverySymbolByTheWordsOfItsStoredName()
    {
        const QList<std::pair<QString, QString>> words {
            { u"up"_s, u"up"_s },         { u"down"_s, u"down"_s },
            { u"fill"_s, u"filled"_s },   { u"square"_s, u"square"_s },
            { u"circle"_s, u"circle"_s }, { u"bolt"_s, u"Bolt"_s },
            { u"line"_s, u"line"_s },     { u"arrowshape"_s, u"Broad"_s },
            { u"g"_s, u"type G"_s },      { u"c"_s, u"type C"_s },
            { u"a"_s, u"type A"_s },
        };
        for (const Icon icon : allIcons()) {
            if (isGlyph(icon))
                continue;
            const QStringList parts = rawValue(icon).split(u'.');
            for (const auto &[part, word] : words)
                QVERIFY2(spokenName(icon).contains(word) == parts.contains(part),
                         qPrintable(rawValue(icon) + u' ' + word));
        }
    }
};

FERRIN_TEST(QCoreApplication, SpokenNamesTest)
#include "test_spokennames.moc"
