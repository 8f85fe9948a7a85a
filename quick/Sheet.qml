// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A sheet over the whole of a window, whose content is dimmed meanwhile. What is on the sheet is
// made when it opens and dropped when it closes.
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
        color: Colours.settingsBackground
        border { width: 1; color: Colours.settingsPopBorder }

        Loader {
            id: loader

            active: root.shown
            focus: true
            sourceComponent: root.content
            onLoaded: item.focus = true
        }
    }
}
