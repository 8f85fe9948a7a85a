// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// A link that opens outside of the application: a symbol and a label.
Pressable {
    id: root

    required property string label
    required property string symbol
    required property string address

    spokenName: root.label
    implicitWidth: row.width
    implicitHeight: Math.max(20, row.height)

    Accessible.role: Accessible.Link

    onPressed: Links.open(address)

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    FocusRing {
        anchors { leftMargin: -4; rightMargin: -4; topMargin: -2; bottomMargin: -2 }
        radius: 4
        owner: root
    }

    Row {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        spacing: 6
        opacity: root.isDown ? 0.7 : 1

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            name: root.symbol
            size: 13
            color: words.color
        }

        Text {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            textFormat: Text.PlainText
            font {
                family: Fonts.regular13.family
                pixelSize: Fonts.regular13.pixelSize
                underline: true
            }
            color: root.isHovered ? Colors.linkHovered : Colors.link
        }
    }
}
