// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The icons to choose from for one battery state, in one or two groups. It owns the states of their
// buttons.
FocusScope {
    id: root

    required property StateChoices choices
    // Empty if there is no such group.
    property list<string> dynamicIcons
    property int dynamicColumns: 6
    required property list<string> staticIcons
    required property string staticCaption
    // The ButtonState of each button by its icon.
    property var iconButtons: ({})

    implicitWidth: 260
    implicitHeight: column.implicitHeight + 28

    Component.onCompleted: root.mark(choices.icon)

    Connections {
        target: root.choices

        function onIconChanged() {
            root.mark(root.choices.icon);
        }
    }

    // qmllint disable unqualified
    component Group: IconGroup {
        choices: root.choices
        control: root.iconButtons
        onHovered: (icon, inside) => root.setHovered(icon, inside)
        onMoved: (from, across, down) => root.moveFocus(from, across, down)
    }
    // qmllint enable unqualified

    Column {
        id: column

        x: 15
        y: 14
        spacing: 14

        Group {
            id: dynamicGroup

            visible: icons.length > 0
            heading: "Dymanic icons"
            caption: "Level changes according battery charge %"
            icons: root.dynamicIcons
            columns: root.dynamicColumns
        }

        Group {
            id: staticGroup

            heading: "Static icons"
            caption: root.staticCaption
            icons: root.staticIcons
        }
    }

    // Marks one button as selected and all others as neither selected nor hovered.
    function mark(icon: string) {
        const marked = {};
        const all = choices.icons;
        for (let i = 0; i < all.length; ++i)
            marked[all[i]] = ButtonState.None;
        marked[icon] = ButtonState.Selected;
        root.iconButtons = marked;
    }

    function setHovered(icon: string, hovered: bool) {
        if (iconButtons[icon] === ButtonState.Selected)
            return;
        const state = hovered ? ButtonState.Hovered : ButtonState.None;
        root.iconButtons = Object.assign({}, iconButtons, { [icon]: state });
    }

    // Moves the focus to the nearest button in this direction: within the row for a horizontal step,
    // else in the next row.
    function moveFocus(from: Item, across: int, down: int) {
        const start = root.mapFromItem(from, 0, 0);
        let nearest = null;
        let least = Infinity;
        for (const group of [dynamicGroup, staticGroup]) {
            for (let i = 0; i < group.icons.length; ++i) {
                const way = root.mapFromItem(group.buttonAt(i), 0, 0);
                const aside = (way.x - start.x) * across;
                const below = (way.y - start.y) * down;
                const isThere = down ? below > 0 : aside > 0 && way.y === start.y;
                const distance = down ? below * 100 + Math.abs(way.x - start.x) : aside;
                if (isThere && distance < least) {
                    nearest = group.buttonAt(i);
                    least = distance;
                }
            }
        }
        if (nearest)
            nearest.forceActiveFocus(Qt.TabFocusReason);
    }
}
