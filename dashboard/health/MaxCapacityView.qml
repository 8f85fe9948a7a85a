// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The card of how much charge the battery can hold beside a new one.
CardView {
    id: root

    // Percent; undefined while unknown.
    required property var percent
    readonly property bool isKnown: percent !== undefined

    title: "Max capacity"
    value: isKnown ? `${percent}%` : "Unknown"
    imageView: isKnown ? image : unknownImage
    textView: isKnown ? text : unknownText
    moreInfoView: isKnown ? moreInfo : null

    Component {
        id: image

        MaxCapacityImageView { percent: root.percent ?? 0 }
    }

    Component {
        id: text

        MaxCapacityTextView { percent: root.percent ?? 0 }
    }

    Component {
        id: moreInfo

        MaxCapacityMoreInfoView { percent: root.percent ?? 0 }
    }
}
