// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The popover's content: the menu of sections and, beside it, the selected one.
Rectangle {
    id: root

    implicitWidth: row.implicitWidth + 20
    implicitHeight: row.implicitHeight + 20
    radius: 10
    color: Colours.dashboardColor

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 10

        MainMenuView {}

        MainContentView {}
    }
}
