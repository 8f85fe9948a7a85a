// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The style of a card's text on the card's ground line: two lines of it fit, and where there is
// more it is smaller instead of being cut.
Text {
    leftPadding: 5
    rightPadding: 5
    bottomPadding: 10
    textFormat: Text.PlainText
    font: Fonts.cardVerdict
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignBottom
    // A word so long would be too small to read in one piece.
    wrapMode: /\S{16}/.test(text) ? Text.Wrap : Text.WordWrap
    fontSizeMode: Text.Fit
    minimumPixelSize: 1
    Accessible.ignored: true
}
