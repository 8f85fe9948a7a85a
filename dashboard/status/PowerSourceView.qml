// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The card of where the power comes from.
CardView {
    id: root

    required property int powerSource
    // Of the battery in the picture, percent; undefined while unknown.
    property var charge
    readonly property bool isKnown: powerSource !== Battery.PowerSource.Unknown
    readonly property bool isExternal: powerSource === Battery.PowerSource.External
    readonly property string verdict: isExternal ? "AC Power" : "Battery"

    title: "Power source"
    value: isKnown ? verdict : "Unknown"
    imageView: isKnown ? isExternal ? bolt : glyph : unknownImage
    textView: isKnown ? text : unknownText

    Component {
        id: bolt

        Symbol {
            name: "bolt.fill"
            size: 18
            color: Colours.blueIcon
        }
    }

    Component {
        id: glyph

        BatteryGlyph {
            percent: root.charge ?? 50
            color: Colours.blueIcon
        }
    }

    Component {
        id: text

        GenericTextView { text: root.verdict }
    }
}
