// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// One row of the dashboard's menu: a symbol, a label, and the highlight behind them.
MenuEntry {
    id: root

    required property string image
    // Logical pixels added to the symbol's size.
    property int sizeAdjust: 0

    implicitHeight: 32

    RoundedRect {
        id: mark

        anchors.fill: parent
        radius: 5
        color: root.isSelected ? Colors.menuSelected : Colors.menuHovered
        borderWidth: Colors.outlineWidth
        borderColor: Colors.outline
        opacity: root.buttonState === ButtonState.None ? 0 : 1

        Behavior on opacity {
            enabled: root.isTapping && !Theme.reducesMotion

            NumberAnimation {
                duration: 350
                easing.type: Easing.InOutQuad
            }
        }
    }

    FocusRing {
        radius: mark.radius
        owner: root
    }

    Symbol {
        id: symbol

        anchors { left: parent.left; leftMargin: 6 }
        width: 18
        height: parent.height
        name: root.image
        size: 11 + root.sizeAdjust
        color: Colors.menuText
        opacity: root.isSelected ? 1 : 0.7
    }

    Text {
        anchors {
            left: symbol.right
            leftMargin: 4
            right: parent.right
            rightMargin: 2
            verticalCenter: parent.verticalCenter
        }
        horizontalAlignment: Text.AlignLeft
        text: root.text
        textFormat: Text.PlainText
        font: Fonts.menuItem
        color: Colors.menuText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.smallest
        elide: Text.ElideRight
    }
}
