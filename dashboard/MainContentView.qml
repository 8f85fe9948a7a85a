// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Theme

// The selected section. A new one slides in from the menu while the previous one leaves to the other
// side, both fading; the settings have no section here. Sections are loaded by file name, so that only the
// one that is shown is loaded.
Item {
    id: root

    readonly property int section: Dashboard.selected
    // Where a section comes from; the one before leaves by the same distance.
    readonly property real behindMenu: LayoutMirroring.enabled ? width : -width

    implicitWidth: 210
    implicitHeight: 210
    clip: true

    onSectionChanged: root.turn()
    Component.onCompleted: front.source = root.viewOf(section)

    function viewOf(button: int): string {
        switch (button) {
        case Dashboard.MenuButton.Status:
            return "StatusView.qml";
        case Dashboard.MenuButton.Health:
            return "HealthView.qml";
        case Dashboard.MenuButton.Adapter:
            return "PowerAdapterView.qml";
        default:
            return "";
        }
    }

    function turn() {
        slide.complete();
        back.source = front.source;
        front.source = viewOf(section);
        if (Theme.reducesMotion)
            back.source = "";
        else
            slide.start();
    }

    Loader {
        id: front

        width: root.width
        height: root.height
    }

    Loader {
        id: back

        width: root.width
        height: root.height
        enabled: false
    }

    ParallelAnimation {
        id: slide

        Slide { target: front; from: root.behindMenu; to: 0 }
        Fade { target: front; from: 0; to: 1 }
        Slide { target: back; from: 0; to: -root.behindMenu }
        Fade { target: back; from: 1; to: 0 }

        onFinished: back.source = ""
    }

    component Slide: NumberAnimation {
        property: "x"
        duration: 500
        easing.type: Easing.InQuad
    }

    component Fade: NumberAnimation {
        property: "opacity"
        duration: 500
        easing.type: Easing.InQuad
    }
}
