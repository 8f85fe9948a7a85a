// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// Shows that something goes on that has no measure: dots in a ring, the brightest of which goes
// round. They stand still where nothing may move.
Item {
    id: root

    property int brightest: 0

    implicitWidth: 16
    implicitHeight: 16

    Accessible.role: Accessible.Indicator
    Accessible.name: "Busy"

    Timer {
        interval: 100
        repeat: true
        running: root.visible && !Theme.reducesMotion
        onTriggered: root.brightest = (root.brightest + 1) % 8
    }

    Repeater {
        model: 8

        // qmllint disable unqualified
        RoundedRect {
            required property int index
            readonly property int behind: (root.brightest - index + 8) % 8

            x: 6.5 + 6.5 * Math.sin(index * Math.PI / 4)
            y: 6.5 - 6.5 * Math.cos(index * Math.PI / 4)
            width: 3
            height: 3
            radius: 1.5
            color: Colors.secondaryText
            opacity: Theme.reducesMotion ? 0.7 : 1 - behind * 0.11
        }
        // qmllint enable unqualified
    }
}
