// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings
import Ferrin.Theme

// One icon to choose, and the highlight behind it.
Pressable {
    id: root

    required property string icon
    // The charge that the icon shows, percent.
    required property real charge
    // The ButtonState of every button by its icon.
    required property var control
    readonly property bool isSelected: control[icon] === ButtonState.Selected

    // The pointer entered or left.
    signal hovered(inside: bool)

    spokenName: MenuBarIcon.nameOf(icon)
    implicitWidth: 32
    implicitHeight: 32

    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: isSelected

    onIsHoveredChanged: root.hovered(isHovered)

    RoundedRect {
        id: mark

        anchors.fill: parent
        radius: 6
        color: Colors.settingsIconOptions
        borderWidth: root.isSelected ? 1 : 0
        borderColor: Colors.focusRing
        opacity: root.control[root.icon] === ButtonState.None ? 0 : 1
    }

    FocusRing {
        anchors.margins: -2
        radius: mark.radius + 2
        owner: root
    }

    IconView {
        anchors.fill: parent
        icon: root.icon
        charge: root.charge
        status: MenuBarIcon.status
        textColor: Colors.settingsPopoverIcon
        redColor: Colors.redIcon
        fontFamily: Theme.fontFamily
    }
}
