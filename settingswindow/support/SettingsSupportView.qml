// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The support page.
Rectangle {
    implicitWidth: 500
    implicitHeight: 500
    color: Colors.settingsBackground

    Column {
        anchors { fill: parent; margins: 20 }
        spacing: 25

        NoteOnHealthView {
            width: parent.width
        }

        ContactUsView {
            width: parent.width
        }
    }
}
