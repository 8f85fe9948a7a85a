// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The card of how often the battery was charged, and how often it is designed to be.
CardView {
    id: root

    // Undefined while unknown.
    required property var currentCycles
    required property var designCycles
    readonly property bool isKnown: currentCycles !== undefined && designCycles !== undefined

    title: "Charge cycles"
    value: isKnown ? `${currentCycles} of ${designCycles}` : "Unknown"
    imageView: isKnown ? image : unknownImage
    textView: isKnown ? text : unknownText
    moreInfoView: isKnown ? moreInfo : null

    Component {
        id: image

        CyclesImageView {}
    }

    Component {
        id: text

        CyclesTextView {
            currentCycles: root.currentCycles ?? 0
            designCycles: root.designCycles ?? 0
        }
    }

    Component {
        id: moreInfo

        CyclesToMoreInfoView {
            currentCycles: root.currentCycles ?? 0
            designCycles: root.designCycles ?? 0
        }
    }
}
