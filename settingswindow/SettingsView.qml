// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The settings window's content. Its pages are still to come.
Rectangle {
    implicitWidth: 560
    implicitHeight: 400
    color: palette.window
}
