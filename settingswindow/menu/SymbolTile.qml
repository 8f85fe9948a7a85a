// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// A symbol on a rounded square of colour under a white overlay. The square is muted unless it is bright.
Item {
    id: root

    required property string symbol
    required property color color
    property bool isBright: false

    implicitWidth: 28
    implicitHeight: 28

    RoundedRect {
        readonly property bool isLit: root.isBright && !Theme.isHighContrast

        anchors.fill: parent
        radius: 6
        color: isLit ? Qt.lighter(root.color, 1.12) : root.color
        opacity: root.isBright || Theme.isHighContrast ? 1 : 0.7
    }

    RoundedRect {
        anchors.fill: parent
        radius: 6
        color: "white"
        opacity: 0.33
        visible: !Theme.isHighContrast
    }

    Symbol {
        anchors.fill: parent
        name: root.symbol
        size: 14
        color: Colors.menuTileSymbol
    }
}
