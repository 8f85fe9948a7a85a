// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The adapter's voltage above its current.
Item {
    id: root

    required property real voltage
    required property real current

    CardFigures {
        anchors.fill: parent
        raised: 15

        CardFigure {
            id: volts

            padding: 1
            font: Fonts.cardPairValue
            text: Adapter.decimalText(root.voltage)
        }

        CardUnit {
            anchors.baseline: volts.baseline
            padding: 1
            text: "volts"
        }
    }

    CardFigures {
        anchors.fill: parent

        CardFigure {
            id: amperes

            padding: 1
            font: Fonts.cardPairValue
            text: Adapter.decimalText(root.current)
        }

        CardUnit {
            anchors.baseline: amperes.baseline
            padding: 1
            text: "amps"
        }
    }
}
