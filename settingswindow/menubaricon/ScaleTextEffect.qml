// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Theme

// Makes its content swell and sink back once, about its centre, at each change of the trigger.
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

    // A change in the middle goes on from where the content is, so that a trigger that is soon
    // taken back makes one pulse and not two.
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
