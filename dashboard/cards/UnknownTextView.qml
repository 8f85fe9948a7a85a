// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The text of a card whose value is not known.
CardTextCommonStyle {
    text: "Unknown"
    color: Colors.unknownColor
}
