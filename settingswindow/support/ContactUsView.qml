// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Settings

// How to reach the vendor.
SettingsSectionView {
    heading: "Contact us"

    SettingsText {
        width: parent.width
        text: "Do you have any problem or question? Send us an email."
        lineHeight: 1.15
    }

    LinkView {
        label: "Send Mail"
        symbol: "envelope"
        address: Links.supportMail
    }
}
