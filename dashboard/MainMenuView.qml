// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The dashboard's menu. It owns the states of its items, which start afresh with each opening.
FocusScope {
    id: root

    // The state of each item, by its button; every item may reset the others.
    property var states: ({})

    readonly property list<MenuItemView> items: [status, health, adapter, settings]

    implicitWidth: 140
    implicitHeight: 210

    Accessible.role: Accessible.PageTabList
    Accessible.name: "Sections"

    Component.onCompleted: root.select(Dashboard.selected)

    // Marks one item as the selected one and all others as neither selected nor hovered. The keys
    // go on from there.
    function select(button) {
        const marked = {};
        for (let i = 0; i < items.length; ++i)
            marked[items[i].button] = Dashboard.ButtonState.None;
        marked[button] = Dashboard.ButtonState.Selected;
        items[button].focus = true;
        states = marked;
    }

    function setHovered(button, hovered) {
        if (states[button] === Dashboard.ButtonState.Selected)
            return;
        const state = hovered ? Dashboard.ButtonState.Hovered : Dashboard.ButtonState.None;
        states = Object.assign({}, states, { [button]: state });
    }

    // The sections are numbered in the order of the menu.
    function moveFocus(from: int, step: int) {
        if (items[from + step])
            items[from + step].forceActiveFocus(Qt.TabFocusReason);
    }

    // qmllint disable unqualified
    component MenuItem: MenuItemView {
        anchors { left: parent.left; right: parent.right }
        buttonState: root.states[button]
        onHovered: inside => root.setHovered(button, inside)
        onSelected: {
            root.select(button);
            Dashboard.selected = button;
        }

        Keys.onUpPressed: root.moveFocus(button, -1)
        Keys.onDownPressed: root.moveFocus(button, 1)
    }
    // qmllint enable unqualified

    Column {
        anchors { fill: parent; margins: 5 }
        spacing: 5

        MenuItem {
            id: status

            button: Dashboard.MenuButton.Status
            image: "chart.bar.fill"
            text: "STATUS"
        }

        MenuItem {
            id: health

            button: Dashboard.MenuButton.Health
            image: "heart.fill"
            text: "HEALTH"
        }

        MenuItem {
            id: adapter

            button: Dashboard.MenuButton.Adapter
            image: "bolt.fill"
            text: "POWER ADAPTER"
        }

        MenuItem {
            id: settings

            button: Dashboard.MenuButton.Settings
            image: "switch.2"
            sizeAdjust: 2
            text: "SETTINGS"
            customOnTap: () => {
                Dashboard.closeRequested();
                Dashboard.settingsRequested();
            }
        }
    }
}
