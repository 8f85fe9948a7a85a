// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// Asks before the program quits. Shown in a popover of the settings window.
FocusScope {
    id: root

    // Whether the popover with this view is shown; "No" sets it to false.
    property bool isShown: true

    // The program should quit at once.
    signal quitConfirmed

    implicitWidth: 180
    implicitHeight: 80

    Accessible.role: Accessible.AlertMessage
    Accessible.name: question.text

    Column {
        anchors {
            left: parent.left
            right: parent.right
            verticalCenter: parent.verticalCenter
            margins: 10
        }
        spacing: 10

        Text {
            id: question

            width: parent.width
            text: "Do you want quit Ferrin?"
            textFormat: Text.PlainText
            font: Fonts.regular12
            color: Colors.primaryText
            horizontalAlignment: Text.AlignLeft
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Fonts.smallest
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 10

            ProminentButton {
                text: "Yes"
                onPressed: root.quitConfirmed()
            }

            ProminentButton {
                text: "No"
                focus: true
                onPressed: root.isShown = false
            }
        }
    }
}
