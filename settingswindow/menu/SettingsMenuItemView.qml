// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// One row of the settings window's menu: a symbol on a coloured tile, a label, and the highlight behind
// them.
MenuEntry {
    id: root

    required property string image
    required property color color
    // The ButtonState of every row by its button.
    required property var control

    buttonState: control[button]
    implicitHeight: 42

    RoundedRect {
        id: mark

        anchors { fill: parent; margins: 2 }
        radius: 5
        color: Colors.settingsMenuSelected
        borderWidth: Colors.outlineWidth
        borderColor: Colors.outline
        opacity: root.buttonState === ButtonState.None ? 0 : 1
    }

    FocusRing {
        anchors.margins: 2
        radius: mark.radius
        owner: root
    }

    SymbolTile {
        id: tile

        anchors { left: parent.left; leftMargin: 7; verticalCenter: parent.verticalCenter }
        symbol: root.image
        color: root.color
        isBright: root.isSelected
    }

    Text {
        anchors {
            left: tile.right
            leftMargin: 8
            right: parent.right
            rightMargin: 7
            verticalCenter: parent.verticalCenter
        }
        horizontalAlignment: Text.AlignLeft
        text: root.text
        textFormat: Text.PlainText
        font: Fonts.regular13
        color: Colors.primaryText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.smallest
    }
}
