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

QColor over(const QColor &ground, const QColor &color, double opacity)
{
    const auto mixed = [opacity](float top, float below) {
        return float(opacity * top + (1 - opacity) * below);
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()),
                            mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

} // namespace

/// Every pairing of both windows, in both appearances.
class ColorsTest final : public QObject
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
    void everyNameHasAColor();
    void followTheAppearance();

private:
    [[nodiscard]] QColor named(const QByteArray &name)
    {
        const QColor color = namedColor(m_engine, name.constData());
        if (!color.isValid())
            qWarning("There is no colour %s.", name.constData());
        return color;
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
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
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

void ColorsTest::symbolsStandOutFromTheirGrounds()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 3, qPrintable(QString::number(ratio)));
}

void ColorsTest::menuSymbolsStandOutAlthoughTheyAreFaint_data()
{
    addPairs({ { "menuText", "dashboardColor" }, { "menuText", "menuHovered" } });
}

void ColorsTest::menuSymbolsStandOutAlthoughTheyAreFaint()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(over(named(ground), named(top), 0.7), named(ground));
    QVERIFY2(ratio >= 3, qPrintable(QString::number(ratio)));
}

void ColorsTest::tilesCarryWhiteSymbolsAlthoughTheyAreFaint_data()
{
    QList<std::pair<QByteArray, QByteArray>> pairs;
    for (const char *tile :
         { "systemOrange", "systemBlue", "systemGray", "systemBrown", "systemRed" }) {
        pairs.emplaceBack(tile, "settingsMenu");
        pairs.emplaceBack(tile, "settingsMenuSelected");
    }
    addPairs(pairs);
}

void ColorsTest::tilesCarryWhiteSymbolsAlthoughTheyAreFaint()
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

void ColorsTest::gaugesStandOutFromTheirTracks_data()
{
    addPairs({ { "gaugeRed", "gaugeTrack" },
               { "gaugeOrange", "gaugeTrack" },
               { "gaugeGreen", "gaugeTrack" } });
}

void ColorsTest::gaugesStandOutFromTheirTracks()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 2, qPrintable(QString::number(ratio)));
}

void ColorsTest::panelsStandOutFromTheirWindow_data()
{
    addPairs({ { "greyIcon", "cardColor" },
               { "greyIcon", "dashboardColor" },
               { "settingsRectBorder", "settingsBackground" } });
}

void ColorsTest::panelsStandOutFromTheirWindow()
{
    QFETCH(Appearance, appearance);
    QFETCH(QByteArray, top);
    QFETCH(QByteArray, ground);
    m_appearance.setAppearance(appearance);
    const double ratio = contrast(named(top), named(ground));
    QVERIFY2(ratio >= 1.25, qPrintable(QString::number(ratio)));
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
