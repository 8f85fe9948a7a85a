// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Theme

// The popover's content: the menu of sections and, beside it, the selected section. The window draws
// the background with its rounded corners.
Item {
    id: root

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    implicitWidth: row.implicitWidth + 20
    implicitHeight: row.implicitHeight + 20

    Shortcut {
        sequence: "F1"
        autoRepeat: false
        onActivated: Dashboard.helpRequested()
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 10

        MainMenuView { focus: true }

        MainContentView {}
    }
}
