// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Theme

// The small button of a card that opens its popover, and closes it while it is shown.
Item {
    id: root

    // What the popover is about.
    required property string title
    required property bool cardHovered
    required property bool isPopoverShown
    // The current click's press has just closed the popover.
    required property bool justTapped

    // Whether the pointer was over the card when the popover opened: while it is shown, the card does
    // not receive all hover events.
    property bool lastCardHover: false
    // Whether the pointer is over the card, as far as is known.
    readonly property bool cardHoverEntered: isPopoverShown ? lastCardHover : cardHovered

    signal openRequested
    signal closeRequested

    implicitWidth: 15
    implicitHeight: 15
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: `More about ${title}`
    Accessible.focusable: true
    Accessible.checkable: true
    Accessible.checked: isPopoverShown
    Accessible.onPressAction: root.toggle()

    Keys.onReturnPressed: root.toggle()
    Keys.onEnterPressed: root.toggle()
    Keys.onSpacePressed: root.toggle()

    onCardHoveredChanged: {
        if (!isPopoverShown)
            root.lastCardHover = cardHovered;
    }

    function toggle() {
        if (isPopoverShown)
            closeRequested();
        else
            openRequested();
    }

    RoundedRect {
        id: ground

        anchors.fill: parent
        radius: width / 2
        color: Colors.cardButton
        visible: hover.hovered || root.isPopoverShown || Theme.isHighContrast
        borderWidth: Colors.outlineWidth
        borderColor: Colors.outline
    }

    FocusRing {
        anchors.margins: -2
        radius: ground.radius + 2
        owner: root
    }

    Symbol {
        anchors.fill: parent
        name: root.isPopoverShown ? "xmark" : "chevron.down"
        size: 10
        color: root.cardHoverEntered || root.isPopoverShown ? Colors.cardTextColor
                                                            : Colors.unknownColor
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        property bool closes: false

        // Tolerates a slight miss of the small target.
        margin: 4
        onPressedChanged: {
            if (pressed)
                tap.closes = root.isPopoverShown || root.justTapped;
        }
        onTapped: {
            if (tap.closes)
                root.closeRequested();
            else
                root.openRequested();
        }
    }
}
