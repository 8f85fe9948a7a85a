// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A unit beside a number on a card.
Text {
    textFormat: Text.PlainText
    font: Fonts.cardUnit
    color: Colors.cardTextColor
    Accessible.ignored: true
}
