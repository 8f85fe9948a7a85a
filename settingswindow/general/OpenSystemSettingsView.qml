// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// Opens the battery pane of the desktop's own settings and closes the window, or, where the desktop
// has none, says so.
MakeBackgroundRectangle {
    id: root

    property string scheme: "x-apple.systempreferences"
    property string pane: "com.apple.preference.battery"
    // The last attempt could not open anything.
    property bool isMissing: false

    title: "System Settings"

    Column {
        width: parent.width
        topPadding: 5

        Pressable {
            id: row

            width: parent.width
            implicitHeight: 28
            spokenName: label.text

            onPressed: {
                root.isMissing = !Links.open(`${root.scheme}:${root.pane}`);
                if (!root.isMissing)
                    Settings.dismissRequested();
            }

            RoundedRect {
                id: mark

                anchors { fill: parent; margins: -5 }
                radius: 6
                color: Colors.settingsMenuSelected
                borderWidth: Colors.outlineWidth
                borderColor: Colors.outline
                opacity: row.isDown ? 1 : 0.7
                visible: row.isHovered
            }

            FocusRing {
                anchors.margins: -5
                radius: mark.radius
                owner: row
            }

            SoftShadow {
                anchors.fill: tile
                radius: tile.radius
            }

            RoundedRect {
                id: tile

                anchors.left: parent.left
                width: 28
                height: 28
                radius: 6
                color: Colors.systemGreen

                Symbol {
                    anchors.fill: parent
                    name: "battery.100"
                    size: 14
                    color: Colors.tileSymbol
                }
            }

            Text {
                id: label

                anchors { left: tile.right; leftMargin: 10; right: parent.right }
                height: parent.height
                horizontalAlignment: Text.AlignLeft
                verticalAlignment: Text.AlignVCenter
                text: root.isMissing ? "This desktop has no battery settings that Ferrin can open."
                                     : "Open System Settings battery section"
                textFormat: Text.PlainText
                font: Fonts.regular13
                color: Colors.primaryText
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Fonts.smallest
            }
        }
    }
}
