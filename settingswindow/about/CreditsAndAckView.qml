// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The components' makers, and the button for the acknowledgement texts.
SettingsSectionView {
    id: root

    // The acknowledgements are shown.
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

    // The components that the program uses here.
    Grid {
        width: parent.width
        columns: 2
        rowSpacing: 4

        Repeater {
            // qmllint disable unqualified
            model: ["Qt: The Qt Company and contributors", "UPower: David Zeuthen, Richard Hughes",
                    "PackageKit: Richard Hughes, Matthias Klumpp",
                    "libudev, libsystemd: the systemd developers",
                    "libxcb: the XCB contributors", "libwayland: the Wayland contributors"]

            SettingsText {
                required property string modelData

                width: parent.width / 2
                text: modelData
                font: Fonts.regular8
                color: Colors.secondaryText
            }
            // qmllint enable unqualified
        }
    }

    ProminentButton {
        id: button

        anchors.left: parent.left
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
