// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The page of the general settings.
Rectangle {
    implicitWidth: 500
    implicitHeight: 500
    color: Colors.settingsBackground

    Column {
        anchors { fill: parent; margins: 20 }
        spacing: 35

        LauchAtLoginView {
            width: parent.width
        }

        ThemePicker {
            width: parent.width
        }

        OpenSystemSettingsView {
            width: parent.width
        }

        AppUpdateView {
            width: parent.width
        }
    }
}
