// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// What lies over a window's content for a while and is worked with first: it has the focus, and
// what lies behind it rests until it closes. It closes at Escape and with its window; the focus then
// goes back to what it belongs to. What is on it is added by whoever derives from it.
FocusScope {
    id: root

    required property Item anchor
    // Told to those who do not see what it belongs to.
    required property string title
    // Written by open() and close() alone.
    property bool shown: false

    // What rests while it is shown.
    property Item background: null

    // A press beside all that is on it.
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
        root.shown = true;
        root.forceActiveFocus(Qt.PopupFocusReason);
        root.background.enabled = false;
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
