// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Settings

// The page of the menu bar icon: what the item shows in each battery state.
FocusScope {
    id: root

    Column {
        anchors.centerIn: parent
        width: parent.width - 24
        spacing: 8

        SettingsMBISectionView {
            width: parent.width
            choices: MenuBarIcon.discharging
        }

        SettingsMBISectionView {
            width: parent.width
            choices: MenuBarIcon.charging
        }

        SettingsMBISectionView {
            width: parent.width
            choices: MenuBarIcon.charged
        }
    }
}
