// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The tile of one value: a title, an image and a short text, aligned in the same way on every card,
// and, if there is an explanation, a button for the popover that shows it.
Item {
    id: root

    required property string title
    // The value in words, for screen readers.
    required property string value
    required property Item imageView
    required property Item textView
    // Without a known value the card shows "Unknown".
    property bool isKnown: true
    // The content of the popover; null if there is none. Never shown for an unknown value.
    property Component moreInfoView: null
    readonly property bool hasMoreInfo: isKnown && moreInfoView !== null

    // The pointer is over the card.
    property bool cardHovered: false
    // The popover was requested.
    property bool showPopover: false
    // The popover is presented.
    property bool isPopoverShown: false
    // A press has just closed the popover; its click must not open it again.
    property bool justTapped: false

    implicitWidth: 100
    implicitHeight: 100
    activeFocusOnTab: true

    Accessible.role: Accessible.StaticText
    Accessible.name: `${title}: ${isKnown ? value : "Unknown"}`
    Accessible.focusable: true

    Component.onCompleted: {
        place(imageView, imageFrame);
        place(textView, textFrame);
    }

    function place(view: Item, frame: Item) {
        view.parent = frame;
        view.anchors.fill = frame;
    }

    function open() {
        afterTap.stop();
        root.justTapped = false;
        popover.open();
        root.showPopover = popover.shown;
    }

    function close() {
        popover.close();
    }

    // A click that leaves the card half open closes it a moment later.
    function tap() {
        if (showPopover)
            root.justTapped = false;
        else
            afterTap.restart();
    }

    RoundedRect {
        id: tile

        anchors.fill: parent
        radius: 10
        color: Colors.cardColor
        borderWidth: 2
        borderColor: Colors.greyIcon
    }

    FocusRing {
        radius: tile.radius
        owner: root
    }

    // In a wide font a title uses some of its padding before it shrinks.
    Text {
        width: parent.width
        padding: 10
        leftPadding: 5
        rightPadding: 5
        text: root.title
        textFormat: Text.PlainText
        font: Fonts.cardTitle
        color: Colors.cardTitleColor
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Fonts.smallest
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    Item {
        id: imageFrame

        x: 30
        y: 31
        width: 40
        height: 28
        visible: root.isKnown
    }

    Loader {
        anchors.fill: imageFrame
        active: !root.isKnown
        sourceComponent: UnknownImageView {}
    }

    Item {
        id: textFrame

        y: 60
        width: parent.width
        height: 40
        visible: root.isKnown
    }

    Loader {
        anchors.fill: textFrame
        active: !root.isKnown
        sourceComponent: UnknownTextView {}
    }

    // Most cards have no explanation, and the button is half of a card's cost.
    Loader {
        anchors { right: parent.right; rightMargin: 5 }
        y: 38
        active: root.hasMoreInfo
        // qmllint disable unqualified
        sourceComponent: MoreInfoButton {
            title: root.title
            cardHovered: root.cardHovered
            isPopoverShown: root.isPopoverShown
            justTapped: root.justTapped
            onOpenRequested: root.open()
            onCloseRequested: root.close()
        }
        // qmllint enable unqualified
    }

    HoverHandler {
        onHoveredChanged: root.cardHovered = hovered
    }

    TapHandler {
        enabled: root.hasMoreInfo
        onTapped: root.tap()
    }

    Timer {
        id: afterTap

        interval: 100
        onTriggered: {
            if (!root.justTapped)
                root.close();
            root.justTapped = false;
        }
    }

    PopoverWindow {
        id: popover

        anchor: root
        title: root.title
        content: root.hasMoreInfo ? root.moreInfoView : null
        onPressedElsewhere: {
            root.justTapped = true;
            afterTap.restart();
        }
        onShownChanged: {
            root.isPopoverShown = shown;
            if (!shown)
                root.showPopover = false;
        }
    }
}
