// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A white symbol on a rounded square of colour, which is fainter than it can be unless it is bright.
Item {
    id: root

    required property string symbol
    required property color color
    property bool isBright: false

    implicitWidth: 28
    implicitHeight: 28

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.isBright ? Qt.lighter(root.color, 1.12) : root.color
        opacity: root.isBright ? 1 : 0.7
    }

    // The light that falls on its rim.
    Rectangle {
        anchors.fill: parent
        radius: 6
        color: "transparent"
        border { width: 1; color: Colours.tileSymbol }
        opacity: 0.33
    }

    Symbol {
        anchors.fill: parent
        name: root.symbol
        size: 14
        color: Colours.tileSymbol
    }
}
