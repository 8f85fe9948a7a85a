// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// One row of a window's menu: what it answers to. How it looks is added by whoever derives from it.
Pressable {
    id: root

    required property int button
    required property string text
    // What a tap does instead of selecting the row; absent for most.
    property var customOnTap
    // Absent: a row without a state of its own shows as hovered.
    required property var buttonState

    readonly property bool isSelected: buttonState === ButtonState.Selected
    // The row is becoming the selected one by a tap.
    property bool isTapping: false

    // The pointer came or went.
    signal hovered(inside: bool)
    // The row becomes the selected one.
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
