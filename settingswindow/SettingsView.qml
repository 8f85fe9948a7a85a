// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The settings window's content: the menu of pages and, beside it, the selected one.
FocusScope {
    id: root

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        SettingsMenuView {
            focus: true
            anchors.verticalCenter: parent.verticalCenter
        }

        Rectangle {
            width: 1
            height: parent.height
            color: Colours.settingsDivider
        }

        SettingsContentView {
            anchors.verticalCenter: parent.verticalCenter
        }
    }
}
