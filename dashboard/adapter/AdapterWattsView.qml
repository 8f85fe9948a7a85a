// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the adapter's power.
AdapterCardView {
    id: root

    // W; undefined while nothing is stored.
    required property var watts

    title: "Power"
    isPresent: watts !== undefined
    isEmpty: watts === 0
    imageView: AdapterWattsImageView {}
    valueView: AdapterWattsTextView { watts: root.watts ?? 0 }
    valueInWords: `${Dashboard.integerText(watts ?? 0)} watts`
}
