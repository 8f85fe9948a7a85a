// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Settings

// How to reach the vendor.
SettingsSectionView {
    id: root

    readonly property bool hasAddress: Links.supportMail !== ""

    heading: "Contact us"

    SettingsText {
        width: parent.width
        text: root.hasAddress
            ? "Do you have any problem or question? Send us an email."
            : "This build of Ferrin has no support address. Please ask whoever you got it from."
        lineHeight: 1.15
    }

    LinkView {
        anchors.left: parent.left
        visible: root.hasAddress
        label: "Send Mail"
        symbol: "envelope"
        address: Links.supportMail
    }
}
