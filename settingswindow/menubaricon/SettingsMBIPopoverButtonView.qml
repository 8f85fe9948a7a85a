// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings
import Ferrin.Theme

// A button with the selected icon of a battery state. It opens and closes the icons to choose from.
Pressable {
    id: root

    required property StateChoices choices
    readonly property alias popoverShown: popover.shown

    spokenName: "Choose icon"
    implicitWidth: 52
    implicitHeight: 28

    Accessible.description: MenuBarIcon.nameOf(choices.icon)

    onPressed: {
        if (popoverShown)
            popover.close();
        else
            popover.open();
    }

    MakeBackgroundChoseIcons {
        anchors.fill: parent
        radius: 5
    }

    RoundedRect {
        anchors { fill: parent; margins: 1 }
        radius: 4
        color: Colors.settingsIconOptions
        opacity: root.isDown || root.popoverShown ? 1 : root.isHovered ? 0.5 : 0
    }

    FocusRing {
        anchors.margins: -3
        radius: 8
        owner: root
    }

    IconView {
        anchors { left: parent.left; leftMargin: 4 }
        width: 30
        height: parent.height
        icon: root.choices.icon
        charge: root.choices.charge
        status: MenuBarIcon.status
        textColor: Colors.settingsPopoverIcon
        redColor: Colors.redIcon
        fontFamily: Theme.fontFamily
    }

    // Both symbols are 10 wide.
    Symbol {
        anchors { right: parent.right; rightMargin: 5 }
        width: 10
        height: parent.height
        name: root.popoverShown ? "xmark" : "chevron.down"
        size: root.popoverShown ? 10.3125 : 11.25
        color: Colors.secondaryText
    }

    InnerPopover {
        id: popover

        anchor: root
        title: "Icons " + root.choices.title.toLowerCase()
        content: root.pageOf(root.choices.status)
    }

    function pageOf(status: int): Component {
        switch (status) {
        case ChargingStatus.Discharging:
            return discharging;
        case ChargingStatus.Charging:
            return charging;
        default:
            return charged;
        }
    }

    Component {
        id: discharging

        SettingsMBIDischargingIconsView {}
    }

    Component {
        id: charging

        SettingsMBIChargingIconsView {}
    }

    Component {
        id: charged

        SettingsMBIChargedIconsView {}
    }
}
