// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// A label with a switch. It never writes `isOn`, which its user binds to the actual state; it signals
// the change that is wanted.
Pressable {
    id: root

    required property string label
    required property bool isOn

    // The user wants to turn the switch on or off.
    signal flipped(on: bool)

    spokenName: label
    implicitWidth: text.implicitWidth + 8 + track.width
    implicitHeight: Math.max(20, text.implicitHeight)
    opacity: isUnavailable ? 0.5 : 1

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.onToggleAction: root.flipped(!isOn)

    onPressed: flipped(!isOn)

    Text {
        id: text

        anchors { left: parent.left; right: track.left; rightMargin: 8 }
        height: parent.height
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        text: root.label
        textFormat: Text.PlainText
        font: Fonts.regular13
        color: Colors.primaryText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.smallest
    }

    RoundedRect {
        id: track

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: 32
        height: 18
        radius: height / 2
        color: root.isOn ? Colors.accent : Colors.switchOff
        borderWidth: Colors.outlineWidth
        borderColor: Colors.outline

        RoundedRect {
            id: knob

            // From where it is off, 0, to where it is on, 1.
            property real way: root.isOn ? 1 : 0

            x: 2 + (root.LayoutMirroring.enabled ? 1 - way : way) * (track.width - width - 4)
            y: 2
            width: 14
            height: 14
            radius: height / 2
            color: root.isOn ? Colors.accentText : Colors.switchKnob

            Behavior on way {
                enabled: !Theme.reducesMotion

                NumberAnimation {
                    duration: 120
                    easing.type: Easing.InOutQuad
                }
            }
        }
    }

    FocusRing {
        anchors.fill: track
        anchors.margins: -3
        radius: track.radius + 3
        owner: root
    }
}
