// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The panel behind the icons to choose from.
RoundedRect {
    radius: 8
    borderWidth: 1
    borderColor: Colors.settingsPopBorder
    color: Colors.settingsPopBckg1
    endColor: Colors.settingsPopBckg2
}
