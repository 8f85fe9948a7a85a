// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// A card of the last adapter that was seen: its value, or in words why there is none. Without a
// known power source nothing is said of an adapter.
CardView {
    id: root

    required property int powerSource
    // What the card shows is stored...
    required property bool isPresent
    // ...but says nothing.
    required property bool isEmpty
    required property Component adapterImageView
    required property Component adapterTextView
    // Of a value that says something.
    required property string adapterValue

    readonly property bool isKnown: powerSource !== Battery.PowerSource.Unknown
    // In place of the value; empty where there is one.
    readonly property string status: {
        if (!isPresent)
            return powerSource === Battery.PowerSource.External ? "Getting info..." : "Not connected";
        return isEmpty ? "Not available" : "";
    }

    value: !isKnown ? "Unknown" : status || adapterValue
    imageView: isKnown ? adapterImageView : unknownImage
    textView: !isKnown ? unknownText : status ? statusText : adapterTextView

    Component {
        id: statusText

        GenericTextView { text: root.status }
    }
}
