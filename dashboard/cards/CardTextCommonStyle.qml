// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The style of a card's text on the card's baseline: two lines fit; longer text is scaled down as long
// as it can be read, and only then cut.
Text {
    leftPadding: 5
    rightPadding: 5
    bottomPadding: 10
    textFormat: Text.PlainText
    font: Fonts.cardVerdict
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignBottom
    // A very long word is broken, or it would be too small to read.
    wrapMode: /\S{16}/.test(text) ? Text.Wrap : Text.WordWrap
    fontSizeMode: Text.Fit
    minimumPixelSize: Fonts.smallest
    elide: Text.ElideRight
    Accessible.ignored: true
}
