// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The adapter's power as a number.
CardFigures {
    id: root

    required property real watts

    CardFigure {
        id: figure

        padding: 2
        text: Dashboard.integerText(root.watts)
    }

    CardUnit {
        anchors.baseline: figure.baseline
        text: "watts"
    }
}
