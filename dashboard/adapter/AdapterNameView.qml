// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The card of the adapter's name.
AdapterCardView {
    id: root

    // Undefined while nothing is stored.
    required property var name

    title: "Description"
    isPresent: name !== undefined
    isEmpty: name === ""
    imageView: AdapterNameImageView {}
    valueView: GenericTextView {
        id: label

        text: root.name ?? ""
    }
    moreInfoView: label.truncated ? whole : null
    valueInWords: name ?? ""

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
