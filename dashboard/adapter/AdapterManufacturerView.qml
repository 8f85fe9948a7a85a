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
    adapterImageView: image
    adapterTextView: text
    adapterValue: manufacturer ?? ""

    Component {
        id: image

        AdapterManufacturerImageView { manufacturer: root.manufacturer ?? "" }
    }

    Component {
        id: text

        GenericTextView { text: root.manufacturer ?? "" }
    }
}
