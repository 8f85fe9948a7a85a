// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// What is new in a release, as high as it needs to be up to a limit, and scrolled by wheel and keys
// beyond it. It comes from outside, and is shown as it is written.
RoundedRect {
    id: root

    required property string notes
    property int maximumHeight: 180
    readonly property bool isScrollable: words.height + 20 > maximumHeight

    implicitHeight: Math.min(words.height + 20, maximumHeight)
    radius: 8
    color: Colors.settingsRectangle
    borderWidth: 1
    borderColor: Colors.settingsRectBorder
    activeFocusOnTab: isScrollable

    Accessible.role: Accessible.Paragraph
    Accessible.name: "What is new"
    Accessible.description: notes
    Accessible.focusable: isScrollable

    Keys.onUpPressed: bar.scrollBy(-20)
    Keys.onDownPressed: bar.scrollBy(20)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown) {
            bar.scrollBy(view.height * (event.key === Qt.Key_PageUp ? -1 : 1));
            event.accepted = true;
        }
    }

    onNotesChanged: view.contentY = 0

    FocusRing {
        anchors.margins: -3
        radius: root.radius + 3
        owner: root
    }

    Flickable {
        id: view

        anchors { fill: parent; margins: 10; rightMargin: 18 }
        clip: true
        contentWidth: width
        contentHeight: words.height
        boundsBehavior: Flickable.StopAtBounds
        interactive: root.isScrollable

        Text {
            id: words

            width: parent.width
            text: root.notes
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Fonts.regular12
            color: Colors.primaryText
            Accessible.ignored: true
        }
    }

    ScrollBar {
        id: bar

        anchors { top: view.top; bottom: view.bottom; right: parent.right; rightMargin: 2 }
        flickable: view
    }
}
