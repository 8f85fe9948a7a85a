// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The turning arrow of the cycles card.
Symbol {
    name: "arrow.clockwise"
    size: 21
    color: Colors.yellowIcon
}
