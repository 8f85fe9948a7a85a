// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// A push button with a word or a few. Alt and the first letter press it, too; while Alt is held that
// letter is underlined. Derived types choose the colours.
Pressable {
    id: root

    required property string text
    required property color groundColor
    required property color textColor
    // Logical pixels; none without a border.
    property int borderWidth: Colors.outlineWidth

    spokenName: text
    implicitWidth: Math.max(56, label.implicitWidth + 20)
    implicitHeight: label.implicitHeight + 10
    opacity: isUnavailable ? 0.5 : 1

    Shortcut {
        sequence: root.text ? `Alt+${root.text.charAt(0)}` : ""
        enabled: root.visible && root.enabled
        autoRepeat: false
        onActivated: root.pressed()
    }

    RoundedRect {
        id: ground

        anchors.fill: parent
        radius: 5
        color: root.groundColor
        borderWidth: root.borderWidth
        borderColor: Colors.settingsPopBorder
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
        color: root.textColor
    }

    Rectangle {
        x: label.x
        y: label.y + label.baselineOffset + 2
        width: firstLetter.advanceWidth
        height: 1
        color: root.textColor
        visible: KeyboardFocus.showsMnemonics
    }

    TextMetrics {
        id: firstLetter

        font: label.font
        text: root.text.charAt(0)
    }
}
