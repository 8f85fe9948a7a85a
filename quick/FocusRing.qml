// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// An outline around its parent, shown while the owner has the focus and the user works by keyboard.
RoundedRect {
    required property Item owner

    anchors.fill: parent
    color: "transparent"
    borderWidth: 2
    borderColor: Colors.focusRing
    visible: owner.activeFocus && KeyboardFocus.isVisible
}
