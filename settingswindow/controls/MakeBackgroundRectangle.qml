// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A panel of a page: rounded, with a border and a title above its content, as high as these.
RoundedRect {
    id: root

    required property string title
    default property alias content: body.data

    implicitHeight: heading.height + body.childrenRect.height + 12
    radius: 8
    color: Colors.settingsRectangle
    borderWidth: 1
    borderColor: Colors.settingsRectBorder

    Text {
        id: heading

        anchors { left: parent.left; right: parent.right; leftMargin: 7; rightMargin: 7 }
        padding: 5
        horizontalAlignment: Text.AlignLeft
        text: root.title
        textFormat: Text.PlainText
        font: Fonts.bold14
        color: Colors.settingsRectTextTitle
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Item {
        id: body

        anchors {
            left: parent.left
            right: parent.right
            top: heading.bottom
            bottom: parent.bottom
            leftMargin: 12
            rightMargin: 12
            bottomMargin: 12
        }
    }
}
