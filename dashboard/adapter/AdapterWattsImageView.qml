// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The bolt of the power card.
Symbol {
    name: "bolt.circle"
    size: 19
    color: Colors.yellowIcon
}
