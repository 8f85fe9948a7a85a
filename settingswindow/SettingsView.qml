// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The settings window's content: the menu of pages and, beside it, the selected page. An overlay, such
// as the question whether to quit, gets Escape first.
FocusScope {
    id: root

    implicitWidth: menu.width + divider.width + content.width
    implicitHeight: Math.max(menu.height, content.height)
    focus: true

    Keys.onEscapePressed: Settings.dismissRequested()

    Shortcut {
        sequence: "Ctrl+W"
        autoRepeat: false
        onActivated: Settings.dismissRequested()
    }

    Shortcut {
        sequence: "Ctrl+Q"
        autoRepeat: false
        enabled: root.enabled
        onActivated: menu.quitPopoverShown = true
    }

    Shortcut {
        sequence: "F1"
        autoRepeat: false
        onActivated: Links.open(Links.faq)
    }

    SettingsMenuView {
        id: menu

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        focus: true
    }

    Rectangle {
        id: divider

        anchors.left: menu.right
        width: 1
        height: parent.height
        color: Colors.settingsDivider
    }

    SettingsContentView {
        id: content

        anchors { left: divider.right; verticalCenter: parent.verticalCenter }
    }
}
