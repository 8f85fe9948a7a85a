// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A popover inside the window of what it belongs to, for what is worked with: it has the focus, and
// what lies behind it rests until it closes. The content is made when it opens and dropped when it
// closes. It closes at Escape, at a press beside it, which goes no further, and with its window.
FocusScope {
    id: root

    required property Item anchor
    required property Component content
    // Told to those who do not see which part the arrow points to.
    required property string title
    readonly property bool shown: loader.active

    // What rests while it is shown.
    property Item background: null

    z: 1
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    visible: shown

    Accessible.role: Accessible.Dialog
    Accessible.name: title

    Keys.onEscapePressed: root.close()
    Component.onDestruction: {
        if (background)
            background.enabled = true;
    }

    // Does nothing while it is shown, and without an anchor in a window.
    function open() {
        const scene = anchor.Window.contentItem;
        if (shown || !scene)
            return;
        root.parent = scene;
        let behind = anchor;
        while (behind.parent !== scene)
            behind = behind.parent;
        root.background = behind;
        loader.active = true;
        place();
        root.forceActiveFocus(Qt.PopupFocusReason);
        root.background.enabled = false;
    }

    function close() {
        if (!shown)
            return;
        loader.active = false;
        root.background.enabled = true;
        root.background = null;
        anchor.forceActiveFocus(Qt.PopupFocusReason);
    }

    function place() {
        const part = anchor.mapToItem(parent, 0, 0, anchor.width, anchor.height);
        const spot = frame.standBeside(part, Qt.size(loader.width, loader.height),
                                       Qt.rect(0, 0, width, height));
        loader.x = spot.x;
        loader.y = spot.y;
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: root.close()
        onWheel: {}
    }

    PopoverGround {
        id: frame

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }

        Loader {
            id: loader

            active: false
            focus: true
            sourceComponent: root.content
            onLoaded: item.focus = true
            onWidthChanged: root.place()
            onHeightChanged: root.place()
        }
    }

    Connections {
        target: root.Window.window

        function onVisibleChanged() {
            root.close();
        }
    }
}
