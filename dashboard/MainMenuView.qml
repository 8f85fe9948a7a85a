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

    // Marks one item as the selected one and all others as neither selected nor hovered.
    function select(button: int) {
        const marked = {};
        for (const item of items)
            marked[item.button] = Dashboard.ButtonState.None;
        marked[button] = Dashboard.ButtonState.Selected;
        states = marked;
    }

    function setHovered(button: int, hovered: bool) {
        if (states[button] === Dashboard.ButtonState.Selected)
            return;
        const state = hovered ? Dashboard.ButtonState.Hovered : Dashboard.ButtonState.None;
        states = Object.assign({}, states, { [button]: state });
    }

    function moveFocus(from: Item, step: int) {
        const next = items[items.indexOf(from) + step];
        if (next)
            next.forceActiveFocus(Qt.TabFocusReason);
    }

    component MenuItem: MenuItemView {
        anchors { left: parent.left; right: parent.right }
        buttonState: root.states[button]
        onHovered: inside => root.setHovered(button, inside)
        onSelected: {
            root.select(button);
            Dashboard.selected = button;
        }

        KeyNavigation.priority: KeyNavigation.BeforeItem
        Keys.onUpPressed: root.moveFocus(this, -1)
        Keys.onDownPressed: root.moveFocus(this, 1)
    }

    Column {
        anchors { fill: parent; margins: 5 }
        spacing: 5

        MenuItem {
            id: status

            button: Dashboard.MenuButton.Status
            image: "chart.bar.fill"
            text: "STATUS"
            focus: true
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
