// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// An empty placeholder for the button that opens the icons.
Item {
    implicitWidth: 52
    implicitHeight: 28
}
