// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const PanelKind gnomeShell { .name = "gnome-shell"_L1, .usualText = PanelText::Light };
const PanelKind swaybar { .name = "swaybar"_L1, .usualText = PanelText::Light };
const PanelKind waybar { .name = "waybar"_L1 };
const QColor trayText(0xee, 0xee, 0xec);

} // namespace

class PanelColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheDesktopWhereNothingBetterIsKnown();
    void bringsItsOwnGroundWhereNothingIsKnown();
    void takesWhatTheHostsSettingsSayBeforeTheTray();
    void takesWhatI3TellsOfItsBarBeforeTheTrayInThatBarOnly();
    void takesWhatSuchHostsLookLikeBeforeTheDesktop();
    void takesTheColorsOfTheTrayBeforeTheHostsDefault();
    void keepsToThePanelWhateverTheThemeIs();
    void bringsAGroundOfTheThemeWhereItContradictsTheDesktop();
    void bringsItsOwnGroundWhereThePanelsSettingsAreUncertain();
    void tellsOfChangesOnly();
    void choosesARedThatReadsOnTheSameGround();
};

void PanelColorsTest::followsTheDesktopWhereNothingBetterIsKnown()
{
    PanelColors colors;
    colors.setAppearance({ .desktopPrefersDark = false });
    QCOMPARE(colors.contextFor({}).text, QColor(Qt::black));
    colors.setAppearance({ .desktopDark = true, .desktopPrefersDark = true });
    QCOMPARE(colors.contextFor({}).text, QColor(Qt::white));
    QVERIFY(!colors.contextFor({}).chip);
    QVERIFY(colors.isOwnBarDark());
}

void PanelColorsTest::bringsItsOwnGroundWhereNothingIsKnown()
{
    PanelColors colors;
    colors.setAppearance({ .desktopDark = true });
    const ViewContext onChip = colors.contextFor({});
    QVERIFY(onChip.chip);
    QVERIFY(contrast(onChip.text, *onChip.chip) >= leastContrast);
    QVERIFY(contrast(onChip.red, *onChip.chip) >= leastContrast);
    QVERIFY(colors.contextFor(waybar).chip);
    QVERIFY(!colors.contextForOwnBar().chip);
    colors.setTrayText(trayText);
    QVERIFY(!colors.contextFor({}).chip);
    colors.setTrayText({});
    colors.setAppearance({ .forcedDark = false });
    QVERIFY(colors.contextFor({}).chip);
}

void PanelColorsTest::takesWhatTheHostsSettingsSayBeforeTheTray()
{
    PanelColors colors;
    const QSignalSpy changes(&colors, &PanelColors::changed);
    colors.setTrayText(trayText);
    colors.setPanelText(swaybar.name, QColor(0x20, 0x20, 0x20));
    colors.setPanelText(swaybar.name, QColor(0x20, 0x20, 0x20));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(colors.contextFor(swaybar).text, QColor(0x20, 0x20, 0x20));
    QCOMPARE(colors.contextFor({}).text, trayText);
    colors.setPanelText(swaybar.name, {});
    QCOMPARE(changes.size(), 3);
    QCOMPARE(colors.contextFor(swaybar).text, trayText);
}

void PanelColorsTest::takesWhatI3TellsOfItsBarBeforeTheTrayInThatBarOnly()
{
    PanelColors colors;
    const QSignalSpy changes(&colors, &PanelColors::changed);
    colors.setTrayText(trayText);
    colors.setI3BarText(QColor(0x20, 0x20, 0x20));
    colors.setI3BarText(QColor(0x20, 0x20, 0x20));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(colors.contextForTray({ .isI3Bar = true }).text, QColor(0x20, 0x20, 0x20));
    QCOMPARE(colors.contextForTray({}).text, trayText);
    colors.setI3BarText({});
    QCOMPARE(colors.contextForTray({ .isI3Bar = true }).text, trayText);
}

void PanelColorsTest::takesWhatSuchHostsLookLikeBeforeTheDesktop()
{
    const PanelColors colors;
    QCOMPARE(colors.contextFor(gnomeShell).text, QColor(Qt::white));
}

void PanelColorsTest::takesTheColorsOfTheTrayBeforeTheHostsDefault()
{
    PanelColors colors;
    colors.setTrayText(QColor(0x2e, 0x34, 0x36));
    QCOMPARE(colors.contextFor(gnomeShell).text, QColor(0x2e, 0x34, 0x36));
    QCOMPARE(colors.contextFor({}).text, QColor(0x2e, 0x34, 0x36));
    QCOMPARE(colors.contextForOwnBar().text, QColor(Qt::black));
}

void PanelColorsTest::keepsToThePanelWhateverTheThemeIs()
{
    for (const bool isDark : { false, true }) {
        PanelColors colors;
        colors.setAppearance({ .forcedDark = isDark, .desktopPrefersDark = isDark });
        QCOMPARE(colors.contextFor(gnomeShell).text, QColor(Qt::white));
        QCOMPARE(colors.isOwnBarDark(), isDark);
        colors.setTrayText(trayText);
        QCOMPARE(colors.contextFor(waybar).text, trayText);
        QCOMPARE(colors.contextForTray({}).text, trayText);
        colors.setPanelText(waybar.name, QColor(Qt::black));
        QCOMPARE(colors.contextFor(waybar).text, QColor(Qt::black));
        QVERIFY(!colors.contextFor(waybar).chip);
    }
}

void PanelColorsTest::bringsAGroundOfTheThemeWhereItContradictsTheDesktop()
{
    PanelColors colors;
    for (const bool isDark : { false, true }) {
        colors.setAppearance({ .forcedDark = isDark, .desktopPrefersDark = isDark });
        QVERIFY(!colors.contextFor(waybar).chip);
        colors.setAppearance({ .forcedDark = isDark, .desktopPrefersDark = !isDark });
        const ViewContext context = colors.contextFor(waybar);
        QVERIFY(context.chip);
        QCOMPARE(context.text, QColor(isDark ? Qt::white : Qt::black));
        QVERIFY(contrast(context.text, *context.chip) >= leastContrast);
        QVERIFY(contrast(context.red, *context.chip) >= leastContrast);
    }
}

void PanelColorsTest::bringsItsOwnGroundWhereThePanelsSettingsAreUncertain()
{
    PanelColors colors;
    const QSignalSpy changes(&colors, &PanelColors::changed);
    colors.setAppearance({ .desktopPrefersDark = true });
    colors.setPanelUncertain(waybar.name, true);
    colors.setPanelUncertain(waybar.name, true);
    QCOMPARE(changes.size(), 2);
    QVERIFY(colors.contextFor(waybar).chip);
    QVERIFY(!colors.contextFor({}).chip);
    colors.setPanelUncertain(waybar.name, false);
    QVERIFY(!colors.contextFor(waybar).chip);
}

void PanelColorsTest::tellsOfChangesOnly()
{
    PanelColors colors;
    const QSignalSpy changes(&colors, &PanelColors::changed);
    colors.setAppearance({});
    colors.setTrayText({});
    QCOMPARE(changes.size(), 0);
    colors.setTrayText(trayText);
    colors.setTrayText(trayText);
    colors.setAppearance({ .fontFamily = u"Cantarell"_s });
    QCOMPARE(changes.size(), 2);
    QCOMPARE(colors.contextFor({}).fontFamily, u"Cantarell"_s);
}

void PanelColorsTest::choosesARedThatReadsOnTheSameGround()
{
    PanelColors colors;
    constexpr double readable = 4.5;
    for (const QColor &ground : { QColor(0xff, 0xff, 0xff), QColor(0xf0, 0xf0, 0xf0) }) {
        colors.setAppearance({ .desktopPrefersDark = false });
        QVERIFY(contrast(colors.contextFor({}).red, ground) >= readable);
    }
    for (const QColor &ground : { QColor(0, 0, 0), QColor(0x2e, 0x34, 0x36) }) {
        colors.setAppearance({ .desktopPrefersDark = true });
        QVERIFY(contrast(colors.contextFor({}).red, ground) >= readable);
    }
}

FERRIN_TEST(QGuiApplication, PanelColorsTest)
#include "test_panelcolors.moc"
