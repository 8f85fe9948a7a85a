// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// Shows which part of a view is seen, where not all is, and lets it be dragged; a click beside the knob turns
// a page. It is as long as the view that it stands beside makes it. Keys go to the view's owner, which scrolls
// by this.
Item {
    id: root

    required property Flickable flickable
    property bool isHorizontal: false

    readonly property real shownShare: isHorizontal ? flickable.visibleArea.widthRatio
                                                    : flickable.visibleArea.heightRatio
    readonly property real length: isHorizontal ? width : height
    // How far it can be scrolled, and by how much the knob moves meanwhile.
    readonly property real contentRange: isHorizontal ? flickable.contentWidth - flickable.width
                                                      : flickable.contentHeight - flickable.height
    readonly property real knobRange: length - knobLength
    readonly property real knobLength: Math.min(length, Math.max(20, length * shownShare))
    readonly property real position: isHorizontal ? flickable.contentX : flickable.contentY
    readonly property real knobPlace: contentRange > 0 ? knobRange * position / contentRange : 0

    implicitWidth: 10
    implicitHeight: 10
    visible: shownShare < 1

    function scrollTo(wanted: real) {
        const next = Math.max(0, Math.min(contentRange, wanted));
        flickable.cancelFlick();
        if (isHorizontal)
            flickable.contentX = next;
        else
            flickable.contentY = next;
    }

    function scrollBy(distance: real) {
        scrollTo(position + distance);
    }

    function along(point: point): real {
        return isHorizontal ? point.x : point.y;
    }

    function turnPageTowards(place: real) {
        const page = isHorizontal ? flickable.width : flickable.height;
        if (place < knobPlace)
            scrollBy(-page);
        else if (place > knobPlace + knobLength)
            scrollBy(page);
    }

    FineWheel {
        flickable: root.flickable
    }

    RoundedRect {
        objectName: "knob"
        x: root.isHorizontal ? root.knobPlace : 2
        y: root.isHorizontal ? 2 : root.knobPlace
        width: root.isHorizontal ? root.knobLength : 6
        height: root.isHorizontal ? 6 : root.knobLength
        radius: 3
        color: Colors.switchOff
        opacity: Theme.isHighContrast || hover.hovered || drag.active ? 1 : 0.7
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: point => root.turnPageTowards(root.along(point.position))
    }

    DragHandler {
        id: drag

        property real begin: 0

        target: null
        dragThreshold: 0
        // A view around it that scrolls as well lets it be.
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onActiveChanged: begin = root.position
        onCentroidChanged: {
            const moved = root.along(centroid.position) - root.along(centroid.pressPosition);
            if (active && root.knobRange > 0)
                root.scrollTo(begin + moved * root.contentRange / root.knobRange);
        }
    }
}
