// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// The root of a window with a title bar: its content, enlarged as the desktop enlarges texts. Where the
// window is too small for it, it scrolls. Overlays belong into `ground`, which is what is seen of it.
FocusScope {
    id: root

    // Its implicit size is that of the window at the usual size of texts.
    required property Item content
    readonly property alias ground: ground
    readonly property Item focusedItem: Window.activeFocusItem
    // How many times larger than usual all is. Where a little less than the texts' size spares scrolling
    // sidewards, it is that.
    readonly property real zoom: {
        const fitting = Math.floor(1000 * width / content.implicitWidth) / 1000;
        const isNear = fitting >= Math.max(1, 0.9 * Theme.textScale);
        return isNear ? Math.min(fitting, Theme.textScale) : Theme.textScale;
    }

    LayoutMirroring.enabled: Theme.isMirrored
    LayoutMirroring.childrenInherit: true

    implicitWidth: Math.ceil(content.implicitWidth * Theme.textScale)
    implicitHeight: Math.ceil(content.implicitHeight * Theme.textScale)
    focus: true

    onFocusedItemChanged: root.reveal(focusedItem)
    Component.onCompleted: {
        content.parent = view.contentItem;
        content.width = Qt.binding(() => view.contentWidth);
        content.height = Qt.binding(() => view.contentHeight);
    }

    // Scrolls to an item of the content.
    function reveal(item: Item) {
        if (!item || !view.interactive || !isContent(item))
            return;
        const part = item.mapToItem(content, 0, 0, item.width, item.height);
        view.contentX = nearest(view.contentX, part.left, part.right, view.width, view.contentWidth);
        view.contentY = nearest(view.contentY, part.top, part.bottom, view.height,
                                view.contentHeight);
    }

    function isContent(item: Item): bool {
        let ancestor = item;
        while (ancestor && ancestor !== content)
            ancestor = ancestor.parent;
        return ancestor === content;
    }

    // The scroll position next to `now` that shows all from one place to another, and a little around.
    function nearest(now: real, from: real, to: real, seen: real, all: real): real {
        const around = 10;
        const wanted = Math.min(from - around, Math.max(now, to + around - seen));
        return Math.max(0, Math.min(wanted, all - seen));
    }

    Item {
        id: ground

        width: root.width / root.zoom
        height: root.height / root.zoom
        transformOrigin: Item.TopLeft
        scale: root.zoom

        Flickable {
            id: view

            anchors.fill: parent
            contentWidth: Math.max(width, root.content.implicitWidth)
            contentHeight: Math.max(height, root.content.implicitHeight)
            interactive: contentWidth > width || contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive

            // What is seen first is where reading begins.
            onContentWidthChanged: contentX = start()
            onWidthChanged: contentX = start()

            function start(): real {
                return root.LayoutMirroring.enabled ? contentWidth - width : 0;
            }
        }

        ScrollBar {
            anchors { top: parent.top; bottom: parent.bottom; right: parent.right }
            flickable: view
        }

        ScrollBar {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            flickable: view
            isHorizontal: true
        }
    }
}
