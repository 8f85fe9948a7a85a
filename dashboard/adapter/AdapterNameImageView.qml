// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The speech bubble of the description card.
Symbol {
    name: "text.bubble"
    size: 18
    color: Colors.greenIcon
}
