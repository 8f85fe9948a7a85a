// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The page about the program.
Rectangle {
    implicitWidth: 500
    implicitHeight: 500
    color: Colors.settingsBackground

    FerrinIconView {
        id: icon

        anchors { top: parent.top; topMargin: 28; horizontalCenter: parent.horizontalCenter }
    }

    CreditsAndAckView {
        anchors {
            left: parent.left
            right: parent.right
            top: icon.bottom
            margins: 20
            topMargin: 24
        }
    }

    CopyrightView {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 20 }
    }
}
