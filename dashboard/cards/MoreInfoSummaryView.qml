// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// The content of an explanation: a header, a verdict in one or two texts, and a summary. The texts are
// Markdown.
Column {
    id: root

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    property string text
    property string secondText
    property string summary
    property string imageName
    property color imageColor

    Row {
        anchors.left: parent.left
        height: 36

        Symbol {
            id: symbol

            width: Math.max(implicitWidth, 16) + 20
            height: parent.height
            name: root.imageName
            size: 16
            color: root.imageColor
        }

        Text {
            height: parent.height
            text: "YOUR BATTERY"
            textFormat: Text.PlainText
            font: Fonts.header
            color: Colors.cardTextColor
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }

    Item {
        width: parent.width
        height: divider.height + 20

        Rectangle {
            id: divider

            anchors {
                left: parent.left
                right: parent.right
                verticalCenter: parent.verticalCenter
                margins: 10
            }
            height: 1
            color: Colors.greyIcon
        }
    }

    MoreInfoText { text: root.text }

    MoreInfoText { text: root.secondText }

    MoreInfoText { text: root.summary }
}
