// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// Plain text of a page, also for screen readers.
Text {
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.WordWrap
    font: Fonts.regular13
    color: Colors.primaryText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
