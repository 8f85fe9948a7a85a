// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A section of a page: a heading above a panel, which is as high as its content.
Column {
    id: root

    required property string heading
    default property alias content: body.data

    spacing: 6

    Text {
        width: parent.width
        leftPadding: 2
        rightPadding: 2
        horizontalAlignment: Text.AlignLeft
        text: root.heading
        textFormat: Text.PlainText
        font: Fonts.regular12
        color: Colors.secondaryText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.smallest
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    RoundedRect {
        width: parent.width
        height: body.height + 24
        radius: 8
        color: Colors.settingsRectangle
        borderWidth: 1
        borderColor: Colors.settingsRectBorder

        Column {
            id: body

            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
            spacing: 12
        }
    }
}
