// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// How the program is kept current: by its updater, or, in a build that has no feed, by the system.
MakeBackgroundRectangle {
    id: root

    title: "Updates"

    Column {
        width: parent.width
        topPadding: 5

        // qmllint disable unqualified
        Loader {
            width: parent.width
            sourceComponent: SoftwareUpdates.hasFeed ? check : note
        }
        // qmllint enable unqualified
    }

    Component {
        id: check

        CheckForUpdatesView {}
    }

    Component {
        id: note

        Text {
            text: "The system's package manager keeps Ferrin current."
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            font: Fonts.regular12
            color: Colours.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
