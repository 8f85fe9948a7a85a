// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the maximum capacity compared with a new battery's.
CardView {
    id: root

    // Percent; undefined while unknown.
    required property var percent

    title: "Max capacity"
    isKnown: percent !== undefined
    value: `${Dashboard.integerText(percent ?? 0)}%`
    imageView: MaxCapacityImageView { percent: root.percent ?? 0 }
    textView: MaxCapacityTextView { percent: root.percent ?? 0 }
    moreInfoView: MaxCapacityMoreInfoView {
        // qmllint disable unqualified
        percent: root.percent ?? 0
        // qmllint enable unqualified
    }
}
