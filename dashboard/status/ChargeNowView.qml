// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The card of the present charge.
CardView {
    id: root

    // Percent; undefined while unknown.
    required property var percent
    readonly property bool isKnown: percent !== undefined

    title: "Charge now"
    value: isKnown ? `${percent}%` : "Unknown"
    imageView: isKnown ? image : unknownImage
    textView: isKnown ? text : unknownText

    Component {
        id: image

        ChargeNowImageView { percent: root.percent ?? 0 }
    }

    Component {
        id: text

        ChargeNowTextView { percent: root.percent ?? 0 }
    }
}
