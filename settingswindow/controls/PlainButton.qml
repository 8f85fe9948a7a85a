// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A push button for what a view offers beside its main thing.
Pressable {
    id: root

    required property string text

    spokenName: text
    implicitWidth: Math.max(56, label.implicitWidth + 20)
    implicitHeight: label.implicitHeight + 10
    opacity: enabled ? 1 : 0.5

    Rectangle {
        id: ground

        anchors.fill: parent
        radius: 5
        color: root.isDown || root.isHovered ? Colours.settingsMenuSelected : Colours.settingsRectangle
        border { width: 1; color: Colours.settingsPopBorder }
    }

    FocusRing {
        anchors.margins: -3
        radius: ground.radius + 3
        owner: root
    }

    Text {
        id: label

        anchors.centerIn: parent
        text: root.text
        textFormat: Text.PlainText
        font: Fonts.regular12
        color: Colours.primaryText
    }
}
