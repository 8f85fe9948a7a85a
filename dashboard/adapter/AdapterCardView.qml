// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// A card about the last adapter that was seen: its value, or the reason why there is none. While the
// power source is unknown, so is the card.
CardView {
    id: root

    required property int powerSource
    // The value is stored...
    required property bool isPresent
    // ...but zero or empty.
    required property bool isEmpty
    // The value as shown and as spoken.
    required property Item valueView
    required property string valueInWords

    // Shown instead of the value; empty if there is one.
    readonly property string status: {
        if (!isPresent)
            return powerSource === Battery.PowerSource.External ? "Getting info..."
                                                                : "Not connected";
        return isEmpty ? "Not available" : "";
    }

    isKnown: powerSource !== Battery.PowerSource.Unknown
    value: status || valueInWords
    textView: Item {
        GenericTextView {
            anchors.fill: parent
            visible: root.status !== ""
            text: root.status
        }

        Item {
            id: valueFrame

            anchors.fill: parent
            visible: root.status === ""
        }
    }

    Component.onCompleted: place(valueView, valueFrame)
}
