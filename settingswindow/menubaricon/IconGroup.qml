// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// Icons of one kind below their heading.
Column {
    id: root

    required property StateChoices choices
    required property string heading
    required property string caption
    required property list<string> icons
    property int columns: 6
    // The ButtonState of every button by its icon.
    required property var control

    // The pointer entered or left one of them.
    signal hovered(icon: string, inside: bool)
    // The user wants to move the focus from this button, by one step in one direction.
    signal moved(from: Item, across: int, down: int)

    width: 230
    spacing: 2

    Accessible.role: Accessible.Grouping
    Accessible.name: heading
    Accessible.description: caption

    Text {
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        text: root.heading
        textFormat: Text.PlainText
        font: Fonts.heavy13
        color: Colors.primaryText
    }

    Text {
        width: 230
        bottomPadding: 5
        horizontalAlignment: Text.AlignLeft
        text: root.caption
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        font: Fonts.regular10
        color: Colors.secondaryText
    }

    MakeBackgroundChoseIcons {
        width: parent.width
        height: grid.height + 14

        Grid {
            id: grid

            anchors.centerIn: parent
            columns: root.columns
            spacing: 4

            // qmllint disable unqualified
            Repeater {
                id: repeater

                model: root.icons

                SettingsMBIIconButtonView {
                    required property string modelData

                    icon: modelData
                    charge: root.choices.charge
                    control: root.control
                    onHovered: inside => root.hovered(icon, inside)
                    onPressed: root.choices.icon = icon

                    // The selected icon has the focus first.
                    focus: icon === root.choices.icon

                    Keys.onLeftPressed: root.moved(this, -1, 0)
                    Keys.onRightPressed: root.moved(this, 1, 0)
                    Keys.onUpPressed: root.moved(this, 0, -1)
                    Keys.onDownPressed: root.moved(this, 0, 1)
                }
            }
            // qmllint enable unqualified
        }
    }

    function buttonAt(index: int): Item {
        return repeater.itemAt(index);
    }
}
