// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The switch of `LaunchAtLogin`. It always shows the session's actual state, also after a failed
// change and after one that another program made while the window was in the background.
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
