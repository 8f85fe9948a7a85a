// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

pragma Singleton

import QtQuick
import Ferrin.Theme

// The fonts that views use by role, all of the desktop's interface font. Sizes are logical pixels.
QtObject {
    // Nothing is drawn smaller, in logical pixels: neither fonts nor texts that shrink to fit.
    readonly property int smallest: 9

    readonly property font heavy13: make(13, Font.ExtraBold)
    readonly property font title: make(20, Font.Bold)
    readonly property font bold14: make(14, Font.Bold)
    readonly property font regular13: make(13, Font.Normal)
    readonly property font regular12: make(12, Font.Normal)
    readonly property font semibold10: make(10, Font.DemiBold)
    readonly property font regular10: make(10, Font.Normal)
    // As small as it may be.
    readonly property font regular8: make(8, Font.Normal)

    // Of the cards and what they open.
    readonly property font cardTitle: make(10, Font.DemiBold, 0.5)
    readonly property font cardValue: bold14
    readonly property font cardPairValue: make(12, Font.Bold)
    readonly property font cardUnit: make(9, Font.DemiBold)
    readonly property font cardVerdict: make(12, Font.DemiBold)
    readonly property font header: make(12, Font.Bold)
    readonly property font caption: make(9, Font.DemiBold)

    // Of the dashboard's menu.
    readonly property font menuItem: make(10, Font.DemiBold)

    function make(pixelSize: int, weight: int, letterSpacing: real): font {
        return Qt.font({
            family: Theme.fontFamily,
            pixelSize: Math.max(pixelSize, smallest),
            weight: weight,
            // Enlarged letters are drawn in the room of those that are not: hinted ones would lose what lies
            // over a whole pixel.
            hintingPreference: Theme.textScale === 1 ? Font.PreferDefaultHinting : Font.PreferNoHinting,
            letterSpacing: letterSpacing || 0
        });
    }
}
