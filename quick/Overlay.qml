// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A modal layer over a window's content: it takes the focus, and the content is disabled until it
// closes. It closes on Escape and with its window; the focus then returns to the anchor. Derived types
// add its content.
FocusScope {
    id: root

    required property Item anchor
    // The accessible name.
    required property string title
    // Written only by open() and close().
    property bool shown: false

    // The item that is disabled while it is shown.
    property Item background: null

    // A press beside its content.
    signal pressedBeside

    z: 1
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    visible: shown

    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Accessible.ignored: !shown

    Keys.onEscapePressed: root.close()
    Component.onDestruction: {
        if (background)
            background.enabled = true;
    }

    // Does nothing if it is shown already or the anchor is in no window.
    function open() {
        const scene = sceneOf(anchor);
        if (shown || !scene)
            return;
        root.parent = scene;
        let behind = anchor;
        while (behind.parent !== scene)
            behind = behind.parent;
        root.background = behind;
        root.shown = true;
        root.forceActiveFocus(Qt.PopupFocusReason);
        root.background.enabled = false;
    }

    // What it covers: the visible part of a growing scene, else of the window.
    function sceneOf(item: Item): Item {
        for (let ancestor = item.parent; ancestor; ancestor = ancestor.parent) {
            if (ancestor instanceof GrowingScene)
                return ancestor.ground;
        }
        return item.Window.contentItem;
    }

    function close() {
        if (!shown)
            return;
        root.shown = false;
        root.background.enabled = true;
        root.background = null;
        anchor.forceActiveFocus(Qt.PopupFocusReason);
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: root.pressedBeside()
        onWheel: {}
    }

    Connections {
        target: root.Window.window

        function onVisibleChanged() {
            root.close();
        }
    }
}
