// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The panel behind the icons to choose from.
Rectangle {
    radius: 8
    border { width: 1; color: Colors.settingsPopBorder }
    gradient: Gradient {
        GradientStop { position: 0; color: Colors.settingsPopBckg1 }
        GradientStop { position: 1; color: Colors.settingsPopBckg2 }
    }
}
