// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// Stands where the control that opens the icons would be.
Item {
    implicitWidth: 52
    implicitHeight: 28
}
