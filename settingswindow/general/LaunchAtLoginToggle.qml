// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The switch of `LaunchAtLogin`: it shows what the session says, also after a change that failed
// and after one that was made elsewhere while its window lay behind.
SwitchView {
    id: root

    isOn: LaunchAtLogin.isEnabled
    onFlipped: on => { LaunchAtLogin.isEnabled = on; }

    Connections {
        target: root.Window.window

        function onActiveChanged() {
            LaunchAtLogin.readAgain();
        }
    }
}
