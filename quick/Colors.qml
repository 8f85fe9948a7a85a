// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

pragma Singleton

import QtQuick
import Ferrin.Theme

// The named colours, each for a light and a dark appearance. Green means good and red attention,
// yellow marks cycles, time and power, blue the power source and volts. Every text has a contrast
// of at least 4.5 to 1 on its ground, every symbol one of 3 to 1.
QtObject {
    readonly property color greenIcon: Theme.isDark ? "#4cc38a" : "#1f7a4d"
    readonly property color redIcon: Theme.isDark ? "#ff7b72" : "#c4281f"
    readonly property color yellowIcon: Theme.isDark ? "#e9b949" : "#a87000"
    readonly property color blueIcon: Theme.isDark ? "#6cb2ff" : "#1b63c6"
    readonly property color greyIcon: Theme.isDark ? "#4a4d52" : "#d4d6da"
    readonly property color unknownColor: Theme.isDark ? "#a5a9b0" : "#62666d"

    // The charge and capacity rings, from empty to full, and their empty part.
    readonly property color gaugeRed: Theme.isDark ? "#ff6259" : "#dc3a2e"
    readonly property color gaugeOrange: Theme.isDark ? "#ff9f43" : "#ee7b1c"
    readonly property color gaugeYellow: Theme.isDark ? "#f2cf4a" : "#e3b20c"
    readonly property color gaugeGreen: Theme.isDark ? "#4cc38a" : "#2c9a60"
    readonly property color gaugeTrack: Theme.isDark ? "#484c52" : "#e1e3e7"

    readonly property color dashboardColor: Theme.isDark ? "#232528" : "#f3f4f6"
    readonly property color cardColor: Theme.isDark ? "#2f3236" : "#ffffff"
    readonly property color cardTitleColor: Theme.isDark ? "#b9bdc4" : "#565a61"
    readonly property color cardTextColor: Theme.isDark ? "#f0f1f3" : "#1d1f22"
    readonly property color menuSelected: Theme.isDark ? "#3d4a5c" : "#d3e2f7"
    readonly property color menuHovered: Theme.isDark ? "#32353a" : "#e5e7ea"
    // Behind a card's button while it is hovered.
    readonly property color cardButton: Theme.isDark ? "#474b52" : "#e5e7ea"
    // The menu's texts and symbols, on any of its backgrounds.
    readonly property color menuText: cardTextColor
    readonly property color focusRing: blueIcon

    readonly property color primaryText: cardTextColor
    // Has contrast with white text on it and with every window background.
    readonly property color accent: Theme.isDark ? "#2d75d6" : "#1b63c6"
    readonly property color accentText: "#ffffff"

    readonly property color secondaryText: cardTitleColor
    readonly property color link: blueIcon
    readonly property color linkHovered: Theme.isDark ? "#a3ceff" : "#134a96"
    // Behind the segments of a picker, and behind the hovered one.
    readonly property color segmentTrack: Theme.isDark ? "#1d1f22" : "#e3e5e9"
    readonly property color segmentHovered: Theme.isDark ? "#393d43" : "#d3d6db"
    readonly property color switchOff: Theme.isDark ? "#7b8088" : "#85898f"
    readonly property color switchKnob: "#ffffff"

    // Behind the white symbols of the settings window; the contrast holds at opacity 0.7, too.
    readonly property color systemOrange: Theme.isDark ? "#c2640a" : "#b85c00"
    readonly property color systemBlue: Theme.isDark ? "#2a72d4" : "#1b63c6"
    readonly property color systemGray: Theme.isDark ? "#70757d" : "#5f636a"
    readonly property color systemBrown: Theme.isDark ? "#8f6a4a" : "#7a5636"
    readonly property color systemRed: Theme.isDark ? "#d2453c" : "#c4281f"
    readonly property color systemGreen: Theme.isDark ? "#2f8a5c" : "#1f7a4d"
    readonly property color tileSymbol: "#ffffff"

    readonly property color settingsMenu: Theme.isDark ? "#1d1f22" : "#e6e8ec"
    readonly property color settingsMenuSelected: Theme.isDark ? "#3d4a5c" : "#cadcf5"
    readonly property color settingsBackground: Theme.isDark ? "#232528" : "#f3f4f6"
    readonly property color settingsDivider: greyIcon
    readonly property color settingsRectangle: Theme.isDark ? "#2b2e32" : "#fafbfc"
    readonly property color settingsRectBorder: greyIcon
    readonly property color settingsRectTextTitle: cardTextColor
    // Behind the selected or hovered icon, and the icons themselves.
    readonly property color settingsIconOptions: menuSelected
    readonly property color settingsPopoverIcon: cardTextColor
    readonly property color settingsPopBorder: Theme.isDark ? "#555a61" : "#c4c7cc"
    readonly property color settingsPopBckg1: Theme.isDark ? "#34383d" : "#ffffff"
    readonly property color settingsPopBckg2: Theme.isDark ? "#2b2e32" : "#f3f4f6"
    readonly property color settingsAck: secondaryText
}
