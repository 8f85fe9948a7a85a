// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings
import Ferrin.Theme

// The preview: a piece of a panel with the item in it.
Item {
    id: root

    required property StateChoices choices
    // The lower left corner of the panel's own symbol beside the item.
    readonly property point anchor: Qt.point(94, 18)

    implicitWidth: panel.width
    implicitHeight: panel.height

    Accessible.role: Accessible.Graphic
    Accessible.name: "Preview"
    Accessible.description: choices.sentence

    Image {
        id: panel

        width: 180
        height: 22
        source: "qrc:/mockup/mockupMenuBarPreview." + (Theme.isDark ? "dark" : "light") + ".svg"
        sourceSize { width: 180 * Theme.textScale; height: 22 * Theme.textScale }
    }

    SettingsMBISelectedMockupView {
        x: root.anchor.x - 5 - width
        y: root.anchor.y - 7 - height / 2
        height: panel.height
        choices: root.choices
        textColor: Colors.settingsPopoverIcon
        redColor: Colors.redIcon
        fontFamily: Theme.fontFamily
    }
}
