// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the battery's condition.
CardView {
    id: root

    required property int status
    readonly property bool isKnown: status !== Battery.Health.Unknown
    readonly property string verdict: status === Battery.Health.Normal ? "Normal"
                                                                       : "Service recommended"

    title: "Health"
    value: isKnown ? verdict : "Unknown"
    imageView: isKnown ? image : unknownImage
    textView: isKnown ? text : unknownText
    moreInfoView: isKnown ? moreInfo : null

    Component {
        id: image

        HealthStatusImageView { status: root.status }
    }

    Component {
        id: text

        HealthStatusTextView { text: root.verdict }
    }

    Component {
        id: moreInfo

        HealthStatusMoreInfoView { status: root.status }
    }
}
