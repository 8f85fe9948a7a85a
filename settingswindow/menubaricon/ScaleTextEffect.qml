// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Theme

// Scales its content up and down once, about its centre, at each change of the trigger.
Item {
    id: root

    required property bool trigger
    default property alias content: body.data

    implicitWidth: body.childrenRect.width
    implicitHeight: body.childrenRect.height

    onTriggerChanged: {
        if (!Theme.reducesMotion)
            pulse.restart();
    }

    Item {
        id: body

        anchors.fill: parent
    }

    // A change during the animation continues from the present scale, so that a trigger that is soon
    // reset causes one pulse, not two.
    SequentialAnimation {
        id: pulse

        NumberAnimation {
            target: body
            property: "scale"
            to: 1.05
            duration: 100
            easing.type: Easing.InOutQuad
        }

        NumberAnimation {
            target: body
            property: "scale"
            to: 1
            duration: 100
            easing.type: Easing.InOutQuad
        }
    }
}
