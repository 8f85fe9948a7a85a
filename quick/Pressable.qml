// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The base of everything that can be pressed, by pointer, key or screen reader. It draws nothing.
Item {
    id: root

    // The accessible name.
    required property string spokenName
    // It cannot be pressed for now, and is drawn faintly. What rests below an overlay is not.
    property bool isUnavailable: false
    readonly property alias isHovered: hover.hovered
    readonly property bool isDown: click.pressed || tap.pressed

    signal pressed

    activeFocusOnTab: true
    enabled: !isUnavailable

    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.focusable: true
    // Qt tells screen readers of hidden items as well.
    Accessible.ignored: !visible
    Accessible.onPressAction: root.pressed()

    Keys.onReturnPressed: root.pressed()
    Keys.onEnterPressed: root.pressed()
    Keys.onSpacePressed: root.pressed()

    HoverHandler {
        id: hover

        objectName: "hover"
    }

    // A pointer may slide; a release elsewhere takes the press back.
    TapHandler {
        id: click

        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        gesturePolicy: TapHandler.ReleaseWithinBounds
        // Seconds. Whoever holds a button for long means it no less.
        longPressThreshold: 3600
        onTapped: root.pressed()
    }

    // A finger that slides scrolls; so does a pen.
    TapHandler {
        id: tap

        acceptedDevices: PointerDevice.AllDevices & ~click.acceptedDevices
        longPressThreshold: click.longPressThreshold
        onTapped: root.pressed()
    }
}
