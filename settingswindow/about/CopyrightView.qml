// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The copyright notice.
Column {
    spacing: 3

    component Line: SettingsText {
        anchors { left: parent.left; right: parent.right }
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.NoWrap
        font: Fonts.regular10
        color: Colors.secondaryText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.smallest
        elide: Text.ElideRight
    }

    Line {
        text: "The Ferrin developers"
        font: Fonts.semibold10
        color: Colors.settingsAck
    }

    Line {
        text: "Copyright © 2010–2025"
    }

    Line {
        text: "All rights reserved, except as granted by the GNU GPL, version 3 or later."
    }
}
