// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A plain card text, such as a name.
CardTextCommonStyle {
    color: Colors.cardTextColor
}
