// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The image of a card whose value is not known.
Symbol {
    name: "questionmark.circle"
    size: 18
    color: Colors.unknownColor
}
