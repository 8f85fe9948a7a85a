// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A card's figures and their units in a row on the card's baseline, scaled down if they do not fit. They
// are words of one language, and keep their order where the layout is mirrored.
Item {
    id: root

    default property alias figures: row.data
    // The distance of the row above the baseline.
    property real raised: 0

    FontMetrics {
        id: ground

        font: Fonts.cardVerdict
    }

    Row {
        id: row

        LayoutMirroring.enabled: false

        readonly property real firstBaseline: children.length > 0 ? children[0].baselineOffset : 0

        x: (root.width - width) / 2
        y: Math.round(root.height - 10 - ground.descent - firstBaseline - root.raised)
        transformOrigin: Item.Bottom
        scale: Math.min(1, 90 / implicitWidth)
    }
}
