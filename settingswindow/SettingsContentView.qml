// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The selected page. Pages are loaded by file name, so that only the one that is shown is loaded.
Rectangle {
    id: root

    readonly property int page: Settings.selected

    implicitWidth: 500
    implicitHeight: 500
    color: Colors.settingsBackground

    Loader {
        anchors.fill: parent
        source: root.viewOf(root.page)
    }

    function viewOf(button: int): string {
        switch (button) {
        case Settings.MenuButton.General:
            return "SettingsGeneralView.qml";
        case Settings.MenuButton.Icon:
            return "SettingsMBIMainView.qml";
        case Settings.MenuButton.Support:
            return "SettingsSupportView.qml";
        case Settings.MenuButton.About:
            return "SettingsAboutView.qml";
        default:
            return "";
        }
    }
}
