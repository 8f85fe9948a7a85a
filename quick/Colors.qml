// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

pragma Singleton

import QtQuick
import Ferrin.Theme

// The named colours, each for a light and a dark appearance. Green means good and red attention,
// yellow marks cycles, time and power, blue the power source and volts. Every text has a contrast
// of at least 4.5 to 1 on its ground, every symbol one of 3 to 1; in high contrast 7 to 1 and 4.5 to
// 1, on black or white, and everything that can be pressed has an outline. The desktop's accent, as
// far as it can be read, colours what is selected, switched on or prominent.
QtObject {
    id: root

    readonly property color greenIcon: ink("#1f7a4d", "#4cc38a")
    readonly property color redIcon: ink("#c4281f", "#ff7b72")
    readonly property color yellowIcon: ink("#a87000", "#e9b949")
    readonly property color blueIcon: ink("#1b63c6", "#6cb2ff")
    readonly property color greyIcon: line("#d4d6da", "#4a4d52")
    readonly property color unknownColor: ink("#62666d", "#a5a9b0")

    // The charge and capacity rings, from empty to full, and their empty part.
    readonly property color gaugeRed: graphic("#dc3a2e", "#ff6259")
    readonly property color gaugeOrange: graphic("#ee7b1c", "#ff9f43")
    readonly property color gaugeYellow: graphic("#e3b20c", "#f2cf4a")
    readonly property color gaugeGreen: graphic("#2c9a60", "#4cc38a")
    readonly property color gaugeTrack: Theme.isDark ? "#484c52" : "#e1e3e7"

    readonly property color dashboardColor: ground("#f3f4f6", "#232528")
    readonly property color cardColor: ground("#ffffff", "#2f3236")
    readonly property color cardTitleColor: ink("#565a61", "#b9bdc4")
    readonly property color cardTextColor: pick("#1d1f22", "#f0f1f3", "#000000", "#ffffff")
    readonly property color menuSelected: selection("#d3e2f7", "#3d4a5c")
    readonly property color menuHovered: pick("#e5e7ea", "#32353a", "#e5e7ea", "#26282b")
    // Behind a card's button while it is hovered.
    readonly property color cardButton: pick("#e5e7ea", "#474b52", "#e5e7ea", "#26282b")
    // The menu's texts and symbols, on any of its backgrounds.
    readonly property color menuText: cardTextColor
    readonly property color focusRing: {
        if (Theme.isHighContrast)
            return primaryText;
        const wish = Theme.accent.valid ? Theme.accent : blueIcon;
        return Theme.readable(wish, [cardColor, dashboardColor, menuSelected, settingsMenu,
                                     settingsMenuSelected, settingsRectangle, settingsBackground,
                                     settingsPopBckg1, settingsPopBckg2], 3);
    }

    readonly property color primaryText: cardTextColor
    readonly property color accent: {
        const own = Theme.isDark ? "#2d75d6" : "#1b63c6";
        return Theme.prominent(Theme.accent.valid ? Theme.accent : own,
                               [settingsRectangle, settingsBackground, segmentTrack], textContrast);
    }
    readonly property color accentText: Theme.textOn(accent, textContrast)

    readonly property color secondaryText: cardTitleColor
    readonly property color link: blueIcon
    readonly property color linkHovered: ink("#134a96", "#a3ceff")
    // Behind the segments of a picker, and behind the hovered one.
    readonly property color segmentTrack: ground("#e3e5e9", "#1d1f22")
    readonly property color segmentHovered: pick("#d3d6db", "#393d43", "#e5e7ea", "#26282b")
    readonly property color switchOff: {
        const own = Theme.isDark ? "#7b8088" : "#85898f";
        return Theme.isHighContrast ? Theme.readable(own, [highGround, switchKnob], 4.5) : own;
    }
    readonly property color switchKnob: "#ffffff"

    // Of the settings window's tiles. In its menu they are under a white overlay.
    readonly property color systemOrange: tile("#b85c00", "#c2640a")
    readonly property color systemBlue: tile("#1b63c6", "#2a72d4")
    readonly property color systemGray: tile("#5f636a", "#70757d")
    readonly property color systemBrown: tile("#7a5636", "#8f6a4a")
    readonly property color systemRed: tile("#c4281f", "#d2453c")
    readonly property color systemGreen: tile("#1f7a4d", "#2f8a5c")
    // On a tile, and on one under the overlay.
    readonly property color tileSymbol: "#ffffff"
    readonly property color menuTileSymbol: Theme.isHighContrast ? tileSymbol : "#1d1f22"

    readonly property color settingsMenu: ground("#e6e8ec", "#1d1f22")
    readonly property color settingsMenuSelected: selection("#cadcf5", "#3d4a5c")
    readonly property color settingsBackground: ground("#f3f4f6", "#232528")
    readonly property color settingsDivider: greyIcon
    readonly property color settingsRectangle: ground("#fafbfc", "#2b2e32")
    readonly property color settingsRectBorder: greyIcon
    readonly property color settingsRectTextTitle: cardTextColor
    // Behind the selected or hovered icon, and the icons themselves.
    readonly property color settingsIconOptions: menuSelected
    readonly property color settingsPopoverIcon: cardTextColor
    readonly property color settingsPopBorder: line("#c4c7cc", "#555a61")
    readonly property color settingsPopBckg1: ground("#ffffff", "#34383d")
    readonly property color settingsPopBckg2: ground("#f3f4f6", "#2b2e32")
    readonly property color settingsAck: secondaryText

    // Around what else has no outline: logical pixels, none but in high contrast, and the colour.
    readonly property int outlineWidth: Theme.isHighContrast ? 1 : 0
    readonly property color outline: greyIcon

    readonly property real textContrast: Theme.isHighContrast ? 7 : 4.5
    readonly property color highGround: Theme.isDark ? "#000000" : "#ffffff"

    function pick(light: color, dark: color, highLight: color, highDark: color): color {
        if (Theme.isHighContrast)
            return Theme.isDark ? highDark : highLight;
        return Theme.isDark ? dark : light;
    }

    function ground(light: color, dark: color): color {
        return Theme.isHighContrast ? highGround : Theme.isDark ? dark : light;
    }

    // Of texts, and of symbols that mean something.
    function ink(light: color, dark: color): color {
        const own = Theme.isDark ? dark : light;
        return Theme.isHighContrast ? Theme.readable(own, [highGround], 7) : own;
    }

    function graphic(light: color, dark: color): color {
        const own = Theme.isDark ? dark : light;
        return Theme.isHighContrast ? Theme.readable(own, [highGround], 4.5) : own;
    }

    function line(light: color, dark: color): color {
        return pick(light, dark, "#45484d", "#c4c7cc");
    }

    function tile(light: color, dark: color): color {
        const own = Theme.isDark ? dark : light;
        return Theme.isHighContrast ? Theme.readable(own, [tileSymbol], 4.5) : own;
    }

    function selection(light: color, dark: color): color {
        return Theme.inHueOf(Theme.accent, Theme.isDark ? dark : light);
    }
}
