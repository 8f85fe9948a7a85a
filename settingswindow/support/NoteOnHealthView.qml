// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Settings

// The note on the source of the texts about battery health.
SettingsSectionView {
    id: root

    readonly property string text1: "The data, explanation text and recommendations shown in BATTERY HEALTH section are based"
    readonly property string text2: "entirely"
    readonly property string text3: "on information exisiting in Apple Inc. official website.\n\nYou can find more details in the Frequently Asked Questions section in our web page."

    heading: "A note on battery health"

    SettingsText {
        width: parent.width
        text: `${root.text1} <u>${root.text2}</u> ${root.text3.replace(/\n/g, "<br>")}`
        textFormat: Text.StyledText
        lineHeight: 1.15
        Accessible.name: `${root.text1} ${root.text2} ${root.text3}`
    }

    LinkView {
        anchors.left: parent.left
        label: "Ferrin FAQ"
        symbol: "link"
        address: Links.faq
    }
}
