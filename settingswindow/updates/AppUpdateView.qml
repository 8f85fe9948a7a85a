// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// How the program is kept current: by its updater, and where that cannot be, why.
MakeBackgroundRectangle {
    id: root

    title: "Updates"

    Component.onCompleted: SoftwareUpdates.refreshSupport()

    Column {
        width: parent.width
        topPadding: 5
        spacing: 8

        CheckForUpdatesView {
            width: parent.width
        }

        Text {
            width: parent.width
            visible: text !== ""
            text: SoftwareUpdates.note
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.WordWrap
            font: Fonts.regular12
            color: Colors.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
