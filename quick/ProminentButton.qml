// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A push button in the accent colour, for a view's main action.
PushButton {
    groundColor: isDown ? Qt.darker(Colors.accent, 1.2) : Colors.accent
    textColor: Colors.accentText
}
