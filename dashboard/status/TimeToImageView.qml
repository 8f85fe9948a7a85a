// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The clock of the time card.
Symbol {
    name: "clock"
    size: 20
    color: Colors.yellowIcon
}
