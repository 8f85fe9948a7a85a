// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The soft shadow of a rounded rectangle of the same geometry: black, fading from `strength` to
// nothing within `reach` pixels. Made of layers, because the windows are painted without shaders.
Item {
    id: root

    // Of the rectangle.
    property real radius: 0
    property real strength: 0.33
    property int reach: 4
    // How far below the rectangle it lies.
    property real drop: 1

    // The share of one layer in the whole shadow; it decreases with the layer's reach.
    function shareOf(layer: int): real {
        return 2 * (reach - layer) / (reach * (reach + 1));
    }

    Repeater {
        model: root.reach

        // qmllint disable unqualified
        RoundedRect {
            required property int index

            anchors {
                fill: parent
                margins: -index
                topMargin: root.drop - index
                bottomMargin: -root.drop - index
            }
            radius: root.radius + index
            color: "black"
            opacity: 1 - Math.pow(1 - root.strength, root.shareOf(index))
        }
        // qmllint enable unqualified
    }
}
