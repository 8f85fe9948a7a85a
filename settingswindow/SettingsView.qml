// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The settings window's content: the menu of pages and, beside it, the selected one.
FocusScope {
    id: root

    implicitWidth: menu.width + divider.width + content.width
    implicitHeight: Math.max(menu.height, content.height)
    focus: true

    SettingsMenuView {
        id: menu

        anchors.verticalCenter: parent.verticalCenter
        focus: true
    }

    Rectangle {
        id: divider

        anchors.left: menu.right
        width: 1
        height: parent.height
        color: Colours.settingsDivider
    }

    SettingsContentView {
        id: content

        anchors { left: divider.right; verticalCenter: parent.verticalCenter }
    }
}
