// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// One or more paragraphs of an explanation, in Markdown. Takes no space while it is empty.
Text {
    width: parent?.width ?? 0
    padding: 10
    textFormat: Text.MarkdownText
    font: Fonts.regular12
    horizontalAlignment: Text.AlignLeft
    color: Colors.cardTextColor
    wrapMode: Text.Wrap
    visible: text !== ""

    Accessible.role: Accessible.StaticText
    // Without the markers of bold spans; a marker without a partner is shown and read as typed.
    Accessible.name: text.replace(/\*\*([^*]+)\*\*/g, "$1")
}
