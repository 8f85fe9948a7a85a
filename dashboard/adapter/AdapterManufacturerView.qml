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
    valueView: GenericTextView { text: root.manufacturer ?? "" }
    valueInWords: manufacturer ?? ""
}
