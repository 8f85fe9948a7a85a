// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the present charge.
CardView {
    id: root

    // Percent; undefined while unknown.
    required property var percent

    title: "Charge now"
    isKnown: percent !== undefined
    value: `${Dashboard.integerText(percent ?? 0)}%`
    imageView: ChargeNowImageView { percent: root.percent ?? 0 }
    textView: ChargeNowTextView { percent: root.percent ?? 0 }
}
