// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// Words of a page that are read, by eye or by ear, and nothing else.
Text {
    textFormat: Text.PlainText
    wrapMode: Text.WordWrap
    font: Fonts.regular13
    color: Colours.primaryText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
