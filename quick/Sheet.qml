// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A modal sheet over a window, whose content is dimmed meanwhile. The sheet's content is created when
// it opens and destroyed when it closes.
Overlay {
    id: root

    required property Component content

    Rectangle {
        anchors.fill: parent
        color: "black"
        opacity: 0.45
    }

    SoftShadow {
        anchors.fill: ground
        radius: ground.radius
        reach: 22
    }

    RoundedRect {
        id: ground

        anchors.centerIn: parent
        width: loader.width
        height: loader.height
        radius: 10
        color: Colors.settingsBackground
        borderWidth: 1
        borderColor: Colors.settingsPopBorder

        Loader {
            id: loader

            // Contents scroll where they get less than they ask for.
            width: Math.min(implicitWidth, root.width - 20)
            height: Math.min(implicitHeight, root.height - 20)

            active: root.shown
            focus: true
            sourceComponent: root.content
            onLoaded: item.focus = true
        }
    }
}
