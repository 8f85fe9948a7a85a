// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Settings

// The button that opens the icons to choose from, or an empty space of the same size.
Item {
    id: root

    required property bool showButton
    required property StateChoices choices

    implicitWidth: loader.implicitWidth
    implicitHeight: loader.implicitHeight

    // qmllint disable unqualified
    Loader {
        id: loader

        sourceComponent: root.showButton ? button : placeholder
    }

    Component {
        id: button

        SettingsMBIPopoverButtonView {
            choices: root.choices
        }
    }
    // qmllint enable unqualified

    Component {
        id: placeholder

        SettingsMBIEmptyPopoverButtonView {}
    }
}
