// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings
import Ferrin.Theme

// The program's icon, name and version.
Column {
    readonly property string appVersion: BundleInformation.appVersion
    readonly property string buildNumber: BundleInformation.buildNumber

    spacing: 4

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 96
        height: 96
        sourceSize { width: 96 * Theme.textScale; height: 96 * Theme.textScale }
        source: "qrc:/icons/org.ferrin.Ferrin.svg"
        // The name below it says the same.
        Accessible.ignored: true
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 4
        text: BundleInformation.name
        textFormat: Text.PlainText
        font: Fonts.title
        color: Colors.primaryText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    SettingsText {
        anchors.horizontalCenter: parent.horizontalCenter
        text: `Version ${parent.appVersion} (${parent.buildNumber})`
        font: Fonts.regular12
        color: Colors.secondaryText
    }
}
