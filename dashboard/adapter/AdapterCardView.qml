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
    // Both of a value that says something.
    required property Item valueView
    required property string valueInWords

    // In place of the value; empty where there is one.
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
