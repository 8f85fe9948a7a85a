// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// How much of something is done.
RoundedRect {
    id: root

    // 0 to 1.
    property real value: 0
    // In words, for those who hear it.
    required property string spokenName

    implicitHeight: 6
    radius: height / 2
    color: Colors.gaugeTrack
    borderWidth: Colors.outlineWidth
    borderColor: Colors.outline

    Accessible.role: Accessible.ProgressBar
    Accessible.name: spokenName
    Accessible.description: `${Math.round(value * 100)} %`

    RoundedRect {
        anchors.left: parent.left
        width: root.value > 0 ? Math.max(parent.height, parent.width * root.value) : 0
        height: parent.height
        radius: parent.radius
        color: Colors.accent
    }
}
