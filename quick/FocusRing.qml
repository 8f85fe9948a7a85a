// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Theme

// Marks what the keyboard acts on: an outline around its parent, shown while the owner has the
// focus and got it by a key.
Rectangle {
    required property Item owner

    anchors.fill: parent
    color: "transparent"
    border { width: 2; color: Colours.focusRing }
    visible: owner.activeFocus && KeyboardFocus.isVisible
}
