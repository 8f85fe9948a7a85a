// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// Who made the parts of the program, and the way to the texts that acknowledge it.
SettingsSectionView {
    id: root

    // The acknowledgements are presented.
    property bool showSheet: false

    heading: "Credits & Acknowledgements"

    onShowSheetChanged: {
        if (showSheet)
            sheet.open();
        else
            sheet.close();
    }

    Column {
        width: parent.width
        spacing: 5

        SettingsText {
            width: parent.width
            text: "Sparkle: Sparkle Project"
        }

        SettingsText {
            width: parent.width
            text: "MenuBarExtraAccess: The Ferrin developers"
        }

        SettingsText {
            width: parent.width
            text: "LaunchAtLogin: The Ferrin developers"
        }
    }

    ProminentButton {
        id: button

        text: "Acknowledgements"
        onPressed: root.showSheet = true

        Sheet {
            id: sheet

            anchor: button
            title: "Acknowledgements"
            content: Component {
                // qmllint disable unqualified
                AcknowledgementsView {
                    onDone: root.showSheet = false
                }
                // qmllint enable unqualified
            }
            onShownChanged: root.showSheet = shown
        }
    }
}
