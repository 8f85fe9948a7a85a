// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the charge cycles: done, and designed for.
CardView {
    id: root

    // Undefined while unknown.
    required property var currentCycles
    required property var designCycles

    title: "Charge cycles"
    isKnown: currentCycles !== undefined && designCycles !== undefined
    value: `${Dashboard.integerText(currentCycles ?? 0)} of `
        + Dashboard.integerText(designCycles ?? 0)
    imageView: CyclesImageView {}
    textView: CyclesTextView {
        currentCycles: root.currentCycles ?? 0
        designCycles: root.designCycles ?? 0
    }
    moreInfoView: CyclesToMoreInfoView {
        // qmllint disable unqualified
        currentCycles: root.currentCycles ?? 0
        designCycles: root.designCycles ?? 0
        // qmllint enable unqualified
    }
}
