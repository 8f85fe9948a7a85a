// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// One row of a window's menu: its behaviour. Derived types draw it.
Pressable {
    id: root

    required property int button
    required property string text
    // Called instead of selecting the row; undefined for most rows.
    property var customOnTap
    // A ButtonState; a row without one (undefined) is shown as hovered.
    required property var buttonState

    readonly property bool isSelected: buttonState === ButtonState.Selected
    // The row is being selected by a tap.
    property bool isTapping: false

    // The pointer entered or left.
    signal hovered(inside: bool)
    // The row should become the selected one.
    signal selected

    spokenName: text

    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: isSelected

    onIsHoveredChanged: root.hovered(isHovered)
    onPressed: {
        if (customOnTap) {
            customOnTap.call();
            return;
        }
        root.isTapping = true;
        selected();
        root.isTapping = false;
    }
}
