// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"
#include "quick/quickengine.h"
#include "tests/quick/accents.h"
#include "tests/quick/named.h"
#include "tests/support/chosenappearance.h"
#include "tests/support/testmain.h"

#include <QColor>
#include <QHash>
#include <QList>
#include <QMap>
#include <QMetaProperty>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace ferrin;
using namespace ferrin::test;

namespace {

QColor over(const QColor &ground, const QColor &color, double opacity)
{
    const auto mixed = [opacity](float top, float below) {
        return float(opacity * top + (1 - opacity) * below);
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()),
                            mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

using Palette = QHash<QByteArray, QColor>;

} // namespace

/// Every pairing of both windows, in both appearances, usual and in high contrast, with many
/// accents.
class ColorsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void measuresContrastAsAgreed();
    void textsReadOnTheirGrounds_data();
    void textsReadOnTheirGrounds();
    void symbolsStandOutFromTheirGrounds_data();
    void symbolsStandOutFromTheirGrounds();
    void menuSymbolsStandOutAlthoughTheyAreFaint_data();
    void menuSymbolsStandOutAlthoughTheyAreFaint();
    void tilesCarryTheirSymbolsUnderTheWhiteOverlay_data();
    void tilesCarryTheirSymbolsUnderTheWhiteOverlay();
    void gaugesStandOutFromTheirTracks_data();
    void gaugesStandOutFromTheirTracks();
    void panelsStandOutFromTheirWindow_data();
    void panelsStandOutFromTheirWindow();
    void everyNameHasAColor();
    void keepOurAccentWithoutAnother();
    void keepAnAccentThatCanBeRead();
    void keepTheHueOfAnAccentThatIsTooPale();
    void outlineEverythingInHighContrastAlone();
    void followTheAppearance();

private:
    [[nodiscard]] QColor named(const QByteArray &name)
    {
        const auto color = m_colors->property(name.constData()).value<QColor>();
        if (!color.isValid())
            qWarning("There is no colour %s.", name.constData());
        return color;
    }

    void addPairs(const QList<std::pair<QByteArray, QByteArray>> &pairs)
    {
        QTest::addColumn<Appearance>("appearance");
        QTest::addColumn<bool>("isHigh");
        QTest::addColumn<QByteArray>("top");
        QTest::addColumn<QByteArray>("ground");
        for (const auto &[top, ground] : pairs) {
            const auto row = [&](const char *look, Appearance appearance, bool isHigh) {
                QTest::addRow("%s: %s on %s", look, top.constData(), ground.constData())
                    << appearance << isHigh << top << ground;
            };
            row("light", Appearance::light, false);
            row("dark", Appearance::dark, false);
            row("light, high contrast", Appearance::light, true);
            row("dark, high contrast", Appearance::dark, true);
        }
    }

    /// Whether the row's colours have this contrast, and this one in high contrast, without an
    /// accent and with each of many.
    void verifyPair(double least, double leastInHigh)
    {
        QFETCH(bool, isHigh);
        QFETCH(QByteArray, top);
        QFETCH(QByteArray, ground);
        verifyContrasts(isHigh ? leastInHigh : least, [&](const Palette &palette) {
            return contrast(palette.value(top), palette.value(ground));
        });
    }

    void verifyContrasts(double least, const std::function<double(const Palette &)> &measured)
    {
        QFETCH(Appearance, appearance);
        QFETCH(bool, isHigh);
        QFETCH(QByteArray, top);
        QFETCH(QByteArray, ground);
        for (const Palette &palette : palettes(appearance, isHigh)) {
            QVERIFY2(palette.contains(top) && palette.contains(ground), "There is no such colour.");
            const double ratio = measured(palette);
            QVERIFY2(
                ratio >= least,
                qPrintable(
                    QStringLiteral("%1 with %2").arg(ratio).arg(palette.value("accent").name())));
        }
    }

    /// All of the named colours, with each of the accents.
    const QList<Palette> &palettes(Appearance appearance, bool isHigh)
    {
        QList<Palette> &made = m_palettes[{ appearance == Appearance::dark, isHigh }];
        if (!made.isEmpty())
            return made;
        m_appearance.setAppearance(appearance);
        m_appearance.setHighContrast(isHigh);
        for (const auto &accent : accents()) {
            m_appearance.setAccent(accent);
            made.append(palette());
        }
        return made;
    }

    [[nodiscard]] Palette palette() const
    {
        Palette all;
        const QMetaObject &type = *m_colors->metaObject();
        for (int i = 0; i < type.propertyCount(); ++i)
            all.insert(type.property(i).name(), type.property(i).read(m_colors).value<QColor>());
        return all;
    }

    ChosenAppearance m_appearance;
    QuickEngine m_engine;
    QObject *const m_colors = singletonOf(m_engine, "Colors");
    QMap<std::pair<bool, bool>, QList<Palette>> m_palettes;
};

void ColorsTest::init()
{
    m_appearance.setAppearance(Appearance::light);
    m_appearance.setHighContrast(false);
    m_appearance.setAccent(std::nullopt);
}

void ColorsTest::measuresContrastAsAgreed()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
    QVERIFY(std::abs(contrast(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.01);
}

void ColorsTest::textsReadOnTheirGrounds_data()
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

void ColorsTest::textsReadOnTheirGrounds()
{
    verifyPair(4.5, 7);
}

void ColorsTest::symbolsStandOutFromTheirGrounds_data()
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
               { "accentText", "accent" },
               { "tileSymbol", "systemGreen" },
               { "settingsPopoverIcon", "settingsIconOptions" },
               { "settingsPopoverIcon", "settingsPopBckg1" },
               { "settingsPopoverIcon", "settingsPopBckg2" },
               { "focusRing", "settingsPopBckg1" },
               { "focusRing", "settingsPopBckg2" },
               { "secondaryText", "settingsPopBckg1" },
               { "secondaryText", "settingsIconOptions" } });
}

void ColorsTest::symbolsStandOutFromTheirGrounds()
{
    verifyPair(3, 4.5);
}

void ColorsTest::menuSymbolsStandOutAlthoughTheyAreFaint_data()
{
    addPairs({ { "menuText", "dashboardColor" }, { "menuText", "menuHovered" } });
}

void ColorsTest::menuSymbolsStandOutAlthoughTheyAreFaint()
{
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    verifyContrasts(3, [&](const Palette &palette) {
        const QColor below = palette.value(ground);
        return contrast(over(below, palette.value(top), 0.7), below);
    });
}

void ColorsTest::tilesCarryTheirSymbolsUnderTheWhiteOverlay_data()
{
    QList<std::pair<QByteArray, QByteArray>> pairs;
    for (const char *tile :
         { "systemOrange", "systemBlue", "systemGray", "systemBrown", "systemRed" }) {
        pairs.emplaceBack(tile, "settingsMenu");
        pairs.emplaceBack(tile, "settingsMenuSelected");
    }
    addPairs(pairs);
}

void ColorsTest::tilesCarryTheirSymbolsUnderTheWhiteOverlay()
{
    QFETCH(bool, isHigh);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    verifyContrasts(4.5, [&](const Palette &palette) {
        const QColor tile = palette.value(top);
        const QColor symbol = palette.value("menuTileSymbol");
        if (isHigh)
            return contrast(symbol, tile);
        const QColor faint = over(over(palette.value(ground), tile, 0.7), Qt::white, 0.33);
        // The selected one's is brighter.
        const QColor bright = over(tile.lighter(112), Qt::white, 0.33);
        return std::min(contrast(symbol, faint), contrast(symbol, bright));
    });
}

void ColorsTest::gaugesStandOutFromTheirTracks_data()
{
    addPairs({ { "gaugeRed", "gaugeTrack" },
               { "gaugeOrange", "gaugeTrack" },
               { "gaugeGreen", "gaugeTrack" } });
}

void ColorsTest::gaugesStandOutFromTheirTracks()
{
    verifyPair(2, 2);
}

void ColorsTest::panelsStandOutFromTheirWindow_data()
{
    addPairs({ { "greyIcon", "cardColor" },
               { "greyIcon", "dashboardColor" },
               { "settingsRectBorder", "settingsBackground" },
               { "settingsPopBorder", "settingsPopBckg1" } });
}

void ColorsTest::panelsStandOutFromTheirWindow()
{
    verifyPair(1.25, 4.5);
}

void ColorsTest::everyNameHasAColor()
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
        const QColor color = named(name);
        QVERIFY2(color.isValid() && color.alpha() == 255, name);
    }
}

void ColorsTest::keepOurAccentWithoutAnother()
{
    QCOMPARE(named("accent"), QColor(0x1b63c6));
    QCOMPARE(named("menuSelected"), QColor(0xd3e2f7));
    m_appearance.setAppearance(Appearance::dark);
    QCOMPARE(named("accent"), QColor(0x2d75d6));
    QCOMPARE(named("menuSelected"), QColor(0x3d4a5c));
}

void ColorsTest::keepAnAccentThatCanBeRead()
{
    m_appearance.setAccent(AccentColor { 0x91 / 255.0, 0x41 / 255.0, 0xac / 255.0 });
    QCOMPARE(named("accent").rgb(), QColor(0x91, 0x41, 0xac).rgb());
    QCOMPARE(named("accentText"), QColor(Qt::white));
}

void ColorsTest::keepTheHueOfAnAccentThatIsTooPale()
{
    const QColor pale(0xff, 0xc0, 0x40);
    m_appearance.setAccent(AccentColor { pale.redF(), pale.greenF(), pale.blueF() });
    QVERIFY(std::abs(named("accent").hslHue() - pale.hslHue()) <= 2);
    QVERIFY(named("accent").lightness() < pale.lightness());
    QVERIFY(std::abs(named("menuSelected").hslHue() - pale.hslHue()) <= 4);

    // On a dark window it is as good as it is, with dark text.
    m_appearance.setAppearance(Appearance::dark);
    QCOMPARE(named("accent").rgb(), pale.rgb());
    QCOMPARE(named("accentText"), QColor(Qt::black));
}

void ColorsTest::outlineEverythingInHighContrastAlone()
{
    QCOMPARE(m_colors->property("outlineWidth").toInt(), 0);
    m_appearance.setHighContrast(true);
    QCOMPARE(m_colors->property("outlineWidth").toInt(), 1);
}

void ColorsTest::followTheAppearance()
{
    m_appearance.setAppearance(Appearance::light);
    const QColor light = named("cardColor");
    m_appearance.setAppearance(Appearance::dark);
    QVERIFY(contrast(named("cardColor"), Qt::black) < contrast(light, Qt::black));
    m_appearance.setAppearance(Appearance::light);
    QCOMPARE(named("cardColor"), light);
}

FERRIN_TEST(QGuiApplication, ColorsTest)
#include "test_colors.moc"
