// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A push button for an action beside the view's main one.
PushButton {
    groundColor: isDown || isHovered ? Colors.settingsMenuSelected : Colors.settingsRectangle
    textColor: Colors.primaryText
    borderWidth: 1
}
