// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// A percentage on a card.
CardFigures {
    id: root

    required property real percent

    CardFigure {
        id: figure

        padding: 1
        text: Dashboard.integerText(root.percent)
    }

    CardUnit {
        anchors.baseline: figure.baseline
        padding: 1
        text: "%"
    }
}
