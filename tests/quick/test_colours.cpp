// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"
#include "quick/quickengine.h"
#include "tests/quick/named.h"
#include "tests/support/chosenappearance.h"
#include "tests/support/testmain.h"

#include <QColor>
#include <QTest>

#include <cmath>

using namespace ferrin;
using namespace ferrin::test;

namespace {

QColor over(const QColor &ground, const QColor &colour, double opacity)
{
    const auto mixed = [opacity](float top, float below) {
        return float(opacity * top + (1 - opacity) * below);
    };
    return QColor::fromRgbF(mixed(colour.redF(), ground.redF()),
                            mixed(colour.greenF(), ground.greenF()),
                            mixed(colour.blueF(), ground.blueF()));
}

} // namespace

/// Every pairing of both windows, in both appearances.
class ColoursTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresContrastAsAgreed();
    void textsReadOnTheirGrounds_data();
    void textsReadOnTheirGrounds();
    void symbolsStandOutFromTheirGrounds_data();
    void symbolsStandOutFromTheirGrounds();
    void menuSymbolsStandOutAlthoughTheyAreFaint_data();
    void menuSymbolsStandOutAlthoughTheyAreFaint();
    void tilesCarryWhiteSymbolsAlthoughTheyAreFaint_data();
    void tilesCarryWhiteSymbolsAlthoughTheyAreFaint();
    void gaugesStandOutFromTheirTracks_data();
    void gaugesStandOutFromTheirTracks();
    void panelsStandOutFromTheirWindow_data();
    void panelsStandOutFromTheirWindow();
    void everyNameHasAColour();
    void followTheAppearance();

private:
    [[nodiscard]] QColor named(const QByteArray &name)
    {
        const QColor colour = namedColour(m_engine, name.constData());
        if (!colour.isValid())
            qWarning("There is no colour %s.", name.constData());
        return colour;
    }

    void addPairs(const QList<std::pair<QByteArray, QByteArray>> &pairs)
    {
        QTest::addColumn<Appearance>("appearance");
        QTest::addColumn<QByteArray>("top");
        QTest::addColumn<QByteArray>("ground");
        for (const auto &[top, ground] : pairs) {
            QTest::addRow("light: %s on %s", top.constData(), ground.constData())
                << Appearance::light << top << ground;
            QTest::addRow("dark: %s on %s", top.constData(), ground.constData())
                << Appearance::dark << top << ground;
        }
    }

    ChosenAppearance m_appearance;
    QuickEngine m_engine;
};

void ColoursTest::measuresContrastAsAgreed()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
    QVERIFY(std::abs(contrast(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.01);
}

void ColoursTest::textsReadOnTheirGrounds_data()
{
    addPairs({ { "cardTitleColor", "cardColor" },
               { "cardTextColor", "cardColor" },
               { "unknownColor", "cardColor" },
               { "cardTextColor", "dashboardColor" },
               { "primaryText", "dashboardColor" },
               { "menuText", "dashboardColor" },
               { "menuText", "menuHovered" },
               { "menuText", "menuSelected" },
               { "accentText", "accent" },
               { "settingsRectTextTitle", "settingsRectangle" },
               { "primaryText", "settingsRectangle" },
               { "primaryText", "settingsBackground" },
               { "primaryText", "settingsMenu" },
               { "primaryText", "settingsMenuSelected" },
               { "primaryText", "segmentTrack" },
               { "primaryText", "segmentHovered" },
               { "secondaryText", "settingsRectangle" },
               { "redIcon", "settingsRectangle" },
               { "secondaryText", "settingsBackground" },
               { "link", "settingsRectangle" },
               { "link", "settingsBackground" },
               { "linkHovered", "settingsRectangle" },
               { "linkHovered", "settingsBackground" },
               { "settingsAck", "settingsBackground" } });
}

void ColoursTest::textsReadOnTheirGrounds()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
}

void ColoursTest::symbolsStandOutFromTheirGrounds_data()
{
    addPairs({ { "greenIcon", "cardColor" },
               { "redIcon", "cardColor" },
               { "yellowIcon", "cardColor" },
               { "blueIcon", "cardColor" },
               { "unknownColor", "cardColor" },
               { "cardTitleColor", "cardColor" },
               { "greenIcon", "dashboardColor" },
               { "redIcon", "dashboardColor" },
               { "yellowIcon", "dashboardColor" },
               { "cardTextColor", "cardButton" },
               { "unknownColor", "cardButton" },
               { "focusRing", "cardColor" },
               { "focusRing", "dashboardColor" },
               { "focusRing", "menuSelected" },
               { "focusRing", "settingsMenu" },
               { "focusRing", "settingsMenuSelected" },
               { "focusRing", "settingsRectangle" },
               { "focusRing", "settingsBackground" },
               { "accent", "settingsRectangle" },
               { "accent", "settingsBackground" },
               { "accent", "segmentTrack" },
               { "switchOff", "settingsRectangle" },
               { "switchOff", "settingsBackground" },
               { "switchKnob", "switchOff" },
               { "switchKnob", "accent" },
               { "tileSymbol", "systemGreen" },
               { "settingsPopoverIcon", "settingsIconOptions" },
               { "settingsPopoverIcon", "settingsPopBckg1" },
               { "settingsPopoverIcon", "settingsPopBckg2" },
               { "focusRing", "settingsPopBckg1" },
               { "focusRing", "settingsPopBckg2" },
               { "secondaryText", "settingsPopBckg1" },
               { "secondaryText", "settingsIconOptions" } });
}

void ColoursTest::symbolsStandOutFromTheirGrounds()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 3, qPrintable(QString::number(ratio)));
}

void ColoursTest::menuSymbolsStandOutAlthoughTheyAreFaint_data()
{
    addPairs({ { "menuText", "dashboardColor" }, { "menuText", "menuHovered" } });
}

void ColoursTest::menuSymbolsStandOutAlthoughTheyAreFaint()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(over(named(ground), named(top), 0.7), named(ground));
    QVERIFY2(ratio >= 3, qPrintable(QString::number(ratio)));
}

void ColoursTest::tilesCarryWhiteSymbolsAlthoughTheyAreFaint_data()
{
    QList<std::pair<QByteArray, QByteArray>> pairs;
    for (const char *tile :
         { "systemOrange", "systemBlue", "systemGray", "systemBrown", "systemRed" }) {
        pairs.emplaceBack(tile, "settingsMenu");
        pairs.emplaceBack(tile, "settingsMenuSelected");
    }
    addPairs(pairs);
}

void ColoursTest::tilesCarryWhiteSymbolsAlthoughTheyAreFaint()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const QColor tile = named(top);
    const QColor faint = over(named(ground), tile, 0.7);
    QVERIFY2(contrast(named("tileSymbol"), faint) >= 3, qPrintable(faint.name()));
    // As bright as the selected one's.
    QVERIFY2(contrast(named("tileSymbol"), tile.lighter(112)) >= 3, qPrintable(tile.name()));
}

void ColoursTest::gaugesStandOutFromTheirTracks_data()
{
    addPairs({ { "gaugeRed", "gaugeTrack" },
               { "gaugeOrange", "gaugeTrack" },
               { "gaugeGreen", "gaugeTrack" } });
}

void ColoursTest::gaugesStandOutFromTheirTracks()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 2, qPrintable(QString::number(ratio)));
}

void ColoursTest::panelsStandOutFromTheirWindow_data()
{
    addPairs({ { "greyIcon", "cardColor" },
               { "greyIcon", "dashboardColor" },
               { "settingsRectBorder", "settingsBackground" } });
}

void ColoursTest::panelsStandOutFromTheirWindow()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 1.25, qPrintable(QString::number(ratio)));
}

void ColoursTest::everyNameHasAColour()
{
    for (const char *name : { "greenIcon",
                              "redIcon",
                              "yellowIcon",
                              "blueIcon",
                              "greyIcon",
                              "unknownColor",
                              "cardColor",
                              "cardTitleColor",
                              "cardTextColor",
                              "dashboardColor",
                              "menuSelected",
                              "menuHovered",
                              "settingsMenu",
                              "settingsMenuSelected",
                              "settingsBackground",
                              "settingsRectangle",
                              "settingsRectBorder",
                              "settingsRectTextTitle",
                              "settingsIconOptions",
                              "settingsPopoverIcon",
                              "settingsPopBorder",
                              "settingsPopBckg1",
                              "settingsPopBckg2",
                              "settingsAck" }) {
        const QColor colour = named(name);
        QVERIFY2(colour.isValid() && colour.alpha() == 255, name);
    }
}

void ColoursTest::followTheAppearance()
{
    m_appearance.setAppearance(Appearance::light);
    const QColor light = named("cardColor");
    m_appearance.setAppearance(Appearance::dark);
    QVERIFY(contrast(named("cardColor"), Qt::black) < contrast(light, Qt::black));
    m_appearance.setAppearance(Appearance::light);
    QCOMPARE(named("cardColor"), light);
}

FERRIN_TEST(QGuiApplication, ColoursTest)
#include "test_colours.moc"
