// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick
import Ferrin.Theme

// One row of the dashboard's menu: a symbol, a label, and behind them the mark of its state.
Item {
    id: root

    required property int button
    required property string image
    // Logical pixels added to the symbol's size.
    property int sizeAdjust: 0
    required property string text
    // What a tap does instead of selecting the section; absent for most.
    property var customOnTap
    // Absent: an item without a state of its own shows as hovered.
    required property var buttonState

    readonly property bool isSelected: buttonState === Dashboard.ButtonState.Selected

    // The pointer came or went.
    signal hovered(inside: bool)
    // The item becomes the selected one.
    signal selected

    implicitHeight: 32
    activeFocusOnTab: true

    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: root.tap()

    Keys.onReturnPressed: root.tap()
    Keys.onEnterPressed: root.tap()
    Keys.onSpacePressed: root.tap()

    function tap() {
        if (customOnTap) {
            customOnTap.call();
            return;
        }
        fade.enabled = !Theme.reducesMotion;
        selected();
        fade.enabled = false;
    }

    Rectangle {
        id: mark

        anchors.fill: parent
        radius: 5
        color: root.isSelected ? Colours.menuSelected : Colours.menuHovered
        opacity: root.buttonState === Dashboard.ButtonState.None ? 0 : 1

        Behavior on opacity {
            id: fade

            enabled: false

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
        color: Colours.menuText
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
        text: root.text
        textFormat: Text.PlainText
        font: Fonts.menuItem
        color: Colours.menuText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 6
    }

    HoverHandler {
        id: hover

        objectName: "hover"

        onHoveredChanged: root.hovered(hovered)
    }

    TapHandler {
        onTapped: root.tap()
    }
}
