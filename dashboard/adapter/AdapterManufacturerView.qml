// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The card of the adapter's maker.
AdapterCardView {
    id: root

    // Undefined while nothing is stored.
    required property var manufacturer

    title: "Manufacturer"
    isPresent: manufacturer !== undefined
    isEmpty: manufacturer === ""
    imageView: AdapterManufacturerImageView { manufacturer: root.manufacturer ?? "" }
    valueView: GenericTextView {
        id: label

        text: root.manufacturer ?? ""
    }
    moreInfoView: label.truncated ? whole : null
    valueInWords: manufacturer ?? ""

    // What has no room on the card.
    Component {
        id: whole

        // qmllint disable unqualified
        MoreInfoText {
            width: 200
            textFormat: Text.PlainText
            text: label.text
        }
        // qmllint enable unqualified
    }
}
