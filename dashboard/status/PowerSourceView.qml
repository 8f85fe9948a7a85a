// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The card of the power source.
CardView {
    id: root

    required property int powerSource
    // The charge of the battery glyph, percent; undefined while unknown.
    property var charge
    readonly property bool isExternal: powerSource === Battery.PowerSource.External

    title: "Power source"
    isKnown: powerSource !== Battery.PowerSource.Unknown
    value: isExternal ? "AC Power" : "Battery"
    imageView: Item {
        Symbol {
            anchors.fill: parent
            visible: root.isExternal
            name: "bolt.fill"
            size: 18
            color: Colors.blueIcon
        }

        BatteryGlyph {
            anchors.centerIn: parent
            visible: !root.isExternal
            percent: root.charge ?? 50
            color: Colors.blueIcon
        }
    }
    textView: GenericTextView { text: root.value }
}
