// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// Hours and minutes, both always.
CardFigures {
    id: root

    required property real hours
    required property real minutes

    CardFigure {
        id: figure

        rightPadding: 1
        text: Dashboard.integerText(root.hours)
    }

    CardUnit {
        anchors.baseline: figure.baseline
        rightPadding: 7
        text: "h"
    }

    CardFigure {
        rightPadding: 1
        text: Dashboard.integerText(root.minutes)
    }

    CardUnit {
        anchors.baseline: figure.baseline
        text: "m"
    }
}
