// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// What the time on a full battery means.
Text {
    LayoutMirroring.enabled: Theme.isMirrored

    width: 200
    padding: 10
    text: "Time you can use your laptop approximately if the power adapter is unplugged."
    textFormat: Text.PlainText
    font: Fonts.regular12
    color: Colors.cardTextColor
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
