// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The cycles done and, small, those that the battery is designed for.
CardFigures {
    id: root

    required property real currentCycles
    required property real designCycles

    CardFigure {
        id: figure

        padding: 1
        text: Dashboard.integerText(root.currentCycles)
    }

    CardUnit {
        anchors.baseline: figure.baseline
        padding: 2
        text: "/"
    }

    CardUnit {
        anchors.baseline: figure.baseline
        padding: 1
        text: Dashboard.integerText(root.designCycles)
    }
}
