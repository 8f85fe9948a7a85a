// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The settings window's menu of pages, with the entry that quits the program.
MenuView {
    id: root

    // The question whether to quit is shown.
    property bool quitPopoverShown: false

    items: [general, icon, support, about, quit]

    implicitWidth: 200
    implicitHeight: 500

    Accessible.name: "Pages"

    Component.onCompleted: root.select(Settings.selected)

    onQuitPopoverShownChanged: {
        if (quitPopoverShown)
            quitPopover.open();
        else
            quitPopover.close();
    }

    // The page may be selected elsewhere.
    Connections {
        target: Settings

        function onSelectedChanged() {
            root.select(Settings.selected);
        }
    }

    // qmllint disable unqualified
    component MenuItem: SettingsMenuItemView {
        anchors { left: parent.left; right: parent.right }
        control: root.states
        onHovered: inside => root.setHovered(button, inside)
        onSelected: {
            root.select(button);
            Settings.selected = button;
        }

        Keys.onUpPressed: root.moveFocus(button, -1)
        Keys.onDownPressed: root.moveFocus(button, 1)
    }
    // qmllint enable unqualified

    Rectangle {
        anchors.fill: parent
        color: Colors.settingsMenu
    }

    Column {
        anchors { fill: parent; margins: 10 }

        MenuItem {
            id: general

            button: Settings.MenuButton.General
            image: "gearshape.fill"
            color: Colors.systemOrange
            text: "General"
        }

        MenuItem {
            id: icon

            button: Settings.MenuButton.Icon
            image: "battery.75"
            color: Colors.systemBlue
            text: "Menu bar icon"
        }

        MenuItem {
            id: support

            button: Settings.MenuButton.Support
            image: "questionmark.circle.fill"
            color: Colors.systemGray
            text: "Support"
        }

        MenuItem {
            id: about

            button: Settings.MenuButton.About
            image: "info.circle.fill"
            color: Colors.systemBrown
            text: "About"
        }

        MenuItem {
            id: quit

            button: Settings.MenuButton.Quit
            image: "xmark.circle"
            color: Colors.systemRed
            text: "Quit Ferrin"
            customOnTap: () => { root.quitPopoverShown = true; }
        }
    }

    InnerPopover {
        id: quitPopover

        anchor: quit
        title: "Quit Ferrin"
        content: Component {
            // qmllint disable unqualified
            QuitPopoverView {
                isShown: root.quitPopoverShown
                onIsShownChanged: root.quitPopoverShown = isShown
                onQuitConfirmed: Settings.quitRequested()
            }
            // qmllint enable unqualified
        }
        onShownChanged: root.quitPopoverShown = shown
    }
}
