// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"
#include "platform/linux/statusarea/panelcolours.h"
#include "platform/linux/statusarea/traycolours.h"

#include <QSignalSpy>
#include <QTest>

#include <array>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const HostProfile &unknownHost = mixedProfile();
const QColor trayText(0xee, 0xee, 0xec);

} // namespace

class PanelColoursTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheDesktopWhereNothingBetterIsKnown();
    void bringsItsOwnGroundWhereNothingIsKnown();
    void takesWhatTheHostsSettingsSayBeforeTheTray();
    void takesWhatI3TellsOfItsBarBeforeTheTrayInThatBarOnly();
    void takesWhatSuchHostsLookLikeBeforeTheDesktop();
    void takesTheColoursOfTheTrayBeforeTheHostsDefault();
    void takesTheUsersChoiceBeforeEverything();
    void tellsOfChangesOnly();
    void choosesARedThatReadsOnTheSameGround();
    void readsTheTextAmongTheTraysColours();
    void ignoresTrayColoursOfAnotherShape();
};

void PanelColoursTest::followsTheDesktopWhereNothingBetterIsKnown()
{
    PanelColours colours;
    colours.setAppearance({ .desktopPrefersDark = false });
    QCOMPARE(colours.contextFor(unknownHost).text, QColor(Qt::black));
    colours.setAppearance({ .desktopDark = true, .desktopPrefersDark = true });
    QCOMPARE(colours.contextFor(unknownHost).text, QColor(Qt::white));
    QVERIFY(!colours.contextFor(unknownHost).chip);
    QVERIFY(colours.isOwnBarDark());
}

void PanelColoursTest::bringsItsOwnGroundWhereNothingIsKnown()
{
    PanelColours colours;
    colours.setAppearance({ .desktopDark = true });
    const ViewContext onChip = colours.contextFor(unknownHost);
    QVERIFY(onChip.chip);
    QVERIFY(contrast(onChip.text, *onChip.chip) >= leastContrast);
    QVERIFY(contrast(onChip.red, *onChip.chip) >= leastContrast);
    QVERIFY(colours.contextFor(profileForProcess(u"lxqt-panel")).chip);
    QVERIFY(colours.contextFor(profileForProcess(u"waybar")).chip);
    QVERIFY(!colours.contextForOwnBar().chip);
    colours.setTrayText(trayText);
    QVERIFY(!colours.contextFor(unknownHost).chip);
    colours.setTrayText({});
    colours.setAppearance({ .forcedDark = false });
    QVERIFY(!colours.contextFor(unknownHost).chip);
}

void PanelColoursTest::takesWhatTheHostsSettingsSayBeforeTheTray()
{
    PanelColours colours;
    const HostProfile &swaybar = profileForProcess(u"swaybar");
    const QSignalSpy changes(&colours, &PanelColours::changed);
    colours.setTrayText(trayText);
    colours.setHostText(swaybar, QColor(0x20, 0x20, 0x20));
    colours.setHostText(swaybar, QColor(0x20, 0x20, 0x20));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(colours.contextFor(swaybar).text, QColor(0x20, 0x20, 0x20));
    QCOMPARE(colours.contextFor(unknownHost).text, trayText);
    colours.setHostText(swaybar, {});
    QCOMPARE(changes.size(), 3);
    QCOMPARE(colours.contextFor(swaybar).text, trayText);
}

void PanelColoursTest::takesWhatI3TellsOfItsBarBeforeTheTrayInThatBarOnly()
{
    PanelColours colours;
    const QSignalSpy changes(&colours, &PanelColours::changed);
    colours.setTrayText(trayText);
    colours.setI3BarText(QColor(0x20, 0x20, 0x20));
    colours.setI3BarText(QColor(0x20, 0x20, 0x20));
    QCOMPARE(changes.size(), 2);
    QCOMPARE(colours.contextForTray({ .isI3Bar = true }).text, QColor(0x20, 0x20, 0x20));
    QCOMPARE(colours.contextForTray({}).text, trayText);
    colours.setI3BarText({});
    QCOMPARE(colours.contextForTray({ .isI3Bar = true }).text, trayText);
    colours.setI3BarText(QColor(0x20, 0x20, 0x20));
    colours.setAppearance({ .forcedDark = true });
    QCOMPARE(colours.contextForTray({ .isI3Bar = true }).text, QColor(Qt::white));
}

void PanelColoursTest::takesWhatSuchHostsLookLikeBeforeTheDesktop()
{
    const PanelColours colours;
    for (const QString &process : { u"gnome-shell"_s, u"swaybar"_s })
        QCOMPARE(colours.contextFor(profileForProcess(process)).text, QColor(Qt::white));
}

void PanelColoursTest::takesTheColoursOfTheTrayBeforeTheHostsDefault()
{
    PanelColours colours;
    colours.setTrayText(QColor(0x2e, 0x34, 0x36));
    QCOMPARE(colours.contextFor(profileForProcess(u"gnome-shell")).text, QColor(0x2e, 0x34, 0x36));
    QCOMPARE(colours.contextFor(unknownHost).text, QColor(0x2e, 0x34, 0x36));
    QCOMPARE(colours.contextForOwnBar().text, QColor(Qt::black));
}

void PanelColoursTest::takesTheUsersChoiceBeforeEverything()
{
    PanelColours colours;
    colours.setTrayText(trayText);
    colours.setAppearance({ .forcedDark = false, .desktopDark = true });
    QCOMPARE(colours.contextFor(profileForProcess(u"waybar")).text, QColor(Qt::black));
    QVERIFY(!colours.isOwnBarDark());
    colours.setAppearance({ .forcedDark = true });
    QCOMPARE(colours.contextFor(unknownHost).text, QColor(Qt::white));
    QVERIFY(colours.isOwnBarDark());
}

void PanelColoursTest::tellsOfChangesOnly()
{
    PanelColours colours;
    const QSignalSpy changes(&colours, &PanelColours::changed);
    colours.setAppearance({});
    colours.setTrayText({});
    QCOMPARE(changes.size(), 0);
    colours.setTrayText(trayText);
    colours.setTrayText(trayText);
    colours.setAppearance({ .fontFamily = u"Cantarell"_s });
    QCOMPARE(changes.size(), 2);
    QCOMPARE(colours.contextFor(unknownHost).fontFamily, u"Cantarell"_s);
}

void PanelColoursTest::choosesARedThatReadsOnTheSameGround()
{
    PanelColours colours;
    constexpr double readable = 4.5;
    for (const QColor &ground : { QColor(0xff, 0xff, 0xff), QColor(0xf0, 0xf0, 0xf0) }) {
        colours.setAppearance({ .forcedDark = false });
        QVERIFY(contrast(colours.contextFor(unknownHost).red, ground) >= readable);
    }
    for (const QColor &ground : { QColor(0, 0, 0), QColor(0x2e, 0x34, 0x36) }) {
        colours.setAppearance({ .forcedDark = true });
        QVERIFY(contrast(colours.contextFor(unknownHost).red, ground) >= readable);
    }
}

void PanelColoursTest::readsTheTextAmongTheTraysColours()
{
    const std::array<quint32, 12> announced { 0xeeee, 0xeeee, 0xecec, 1, 2, 3, 4, 5, 6, 7, 8, 9 };
    QCOMPARE(textAmongTrayColours(announced), std::optional(trayText));
}

void PanelColoursTest::ignoresTrayColoursOfAnotherShape()
{
    QVERIFY(!textAmongTrayColours({}));
    const std::array<quint32, 3> tooFew { 1, 2, 3 };
    QVERIFY(!textAmongTrayColours(tooFew));
    const std::array<quint32, 12> tooLarge { 0x10000, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 };
    QVERIFY(!textAmongTrayColours(tooLarge));
}

QTEST_MAIN(PanelColoursTest)
#include "test_panelcolours.moc"
