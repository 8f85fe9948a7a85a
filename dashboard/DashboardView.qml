// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The popover's content. Its sections are still to come.
Rectangle {
    implicitWidth: 420
    implicitHeight: 300
    radius: 10
    color: palette.window
    border.color: Qt.alpha(palette.windowText, 0.2)
}
