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

    Rectangle {
        id: ground

        anchors.centerIn: parent
        width: loader.width
        height: loader.height
        radius: 10
        color: Colors.settingsBackground
        border { width: 1; color: Colors.settingsPopBorder }

        Loader {
            id: loader

            active: root.shown
            focus: true
            sourceComponent: root.content
            onLoaded: item.focus = true
        }
    }
}
