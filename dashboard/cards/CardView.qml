// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The tile of one value: a title, an image and a short text on the same lines on every card, and,
// where there is more to say, a button for the popover that says it.
Item {
    id: root

    required property string title
    // The value in words, for those who hear the card.
    required property string value
    required property Component imageView
    required property Component textView
    // Absent: there is nothing more to say.
    property Component moreInfoView: null

    // The pointer is over the card.
    property bool cardHovered: false
    // The popover is wanted.
    property bool showPopover: false
    // The popover is presented.
    property bool isPopoverShown: false
    // A press has just closed the popover; the click that it begins opens nothing.
    property bool justTapped: false

    // What a card shows for a value that is not known.
    readonly property Component unknownImage: Component { UnknownImageView {} }
    readonly property Component unknownText: Component { UnknownTextView {} }

    implicitWidth: 100
    implicitHeight: 100
    activeFocusOnTab: true

    Accessible.role: Accessible.StaticText
    Accessible.name: `${title}: ${value}`
    Accessible.focusable: true

    function open() {
        afterTap.stop();
        justTapped = false;
        popover.open();
        showPopover = popover.shown;
    }

    function close() {
        popover.close();
    }

    // A click that leaves the card half open closes it a moment later.
    function tap() {
        if (showPopover)
            justTapped = false;
        else
            afterTap.restart();
    }

    Rectangle {
        id: tile

        anchors.fill: parent
        radius: 10
        color: Colours.cardColor
        border { width: 2; color: Colours.greyIcon }
    }

    FocusRing {
        radius: tile.radius
        owner: root
    }

    // In a wide font a title spreads into its padding before it shrinks.
    Text {
        width: parent.width
        padding: 10
        leftPadding: 5
        rightPadding: 5
        text: root.title
        textFormat: Text.PlainText
        font: Fonts.cardTitle
        color: Colours.cardTitleColor
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 6
        Accessible.ignored: true
    }

    Loader {
        x: 30
        y: 33
        width: 40
        height: 28
        sourceComponent: root.imageView
    }

    Loader {
        anchors.bottom: parent.bottom
        width: parent.width
        sourceComponent: root.textView
    }

    MoreInfoButton {
        x: 80
        y: 40
        visible: root.moreInfoView !== null
        title: root.title
        cardHovered: root.cardHovered
        isPopoverShown: root.isPopoverShown
        justTapped: root.justTapped
        onOpenRequested: root.open()
        onCloseRequested: root.close()
    }

    HoverHandler {
        onHoveredChanged: root.cardHovered = hovered
    }

    TapHandler {
        enabled: root.moreInfoView !== null
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
        content: root.moreInfoView
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
