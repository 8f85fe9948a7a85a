// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The dashboard's menu of sections.
MenuView {
    id: root

    items: [status, health, adapter, settings]

    implicitWidth: 140
    implicitHeight: 210

    Accessible.name: "Sections"

    Component.onCompleted: root.select(Dashboard.selected)

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
            onIsHoveredChanged: {
                if (isHovered)
                    Dashboard.settingsExpected();
            }
            onActiveFocusChanged: {
                if (activeFocus)
                    Dashboard.settingsExpected();
            }
            customOnTap: () => {
                Dashboard.closeRequested();
                Dashboard.settingsRequested();
            }
        }
    }
}
