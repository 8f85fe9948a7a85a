// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// An interactive popover inside the window of its anchor. The content is created when it opens and
// destroyed when it closes. A press beside it closes it and is swallowed.
Overlay {
    id: root

    required property Component content

    onPressedBeside: close()

    function place() {
        if (!shown)
            return;
        loader.scale = Math.min(1, (height - 2 * frame.gap) / loader.height);
        const part = anchor.mapToItem(parent, 0, 0, anchor.width, anchor.height);
        const spot = frame.standBeside(part, Qt.size(loader.width * loader.scale,
                                                     loader.height * loader.scale),
                                       Qt.rect(0, 0, width, height));
        loader.x = spot.x;
        loader.y = spot.y;
    }

    PopoverGround {
        id: frame

        // To the edges of the window.
        readonly property int gap: 10

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }

        Loader {
            id: loader

            transformOrigin: Item.TopLeft
            active: root.shown
            focus: true
            sourceComponent: root.content
            onLoaded: {
                item.focus = true;
                root.place();
            }
            onWidthChanged: root.place()
            onHeightChanged: root.place()
        }
    }
}
