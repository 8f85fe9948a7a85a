// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A window's menu of pages. It owns the states of its rows, which start afresh with each opening.
FocusScope {
    id: root

    // In the order of their buttons' numbers.
    required property list<MenuEntry> items
    // The ButtonState of each row by its button; selecting a row resets the others.
    property var states: ({})

    Accessible.role: Accessible.PageTabList

    // Marks one row as selected and all others as neither selected nor hovered. The selected row gets
    // the focus within the menu.
    function select(button: int) {
        const marked = {};
        for (let i = 0; i < items.length; ++i)
            marked[items[i].button] = ButtonState.None;
        marked[button] = ButtonState.Selected;
        items[button].focus = true;
        root.states = marked;
    }

    function setHovered(button: int, hovered: bool) {
        if (states[button] === ButtonState.Selected)
            return;
        const state = hovered ? ButtonState.Hovered : ButtonState.None;
        root.states = Object.assign({}, states, { [button]: state });
    }

    function moveFocus(from: int, step: int) {
        if (items[from + step])
            items[from + step].forceActiveFocus(Qt.TabFocusReason);
    }
}
