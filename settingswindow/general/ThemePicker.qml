// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The choice of the application's colour scheme.
MakeBackgroundRectangle {
    id: root

    readonly property string selectedScheme: ColorTheme.selectedScheme

    title: "Color theme"

    Column {
        width: parent.width
        topPadding: 5

        Item {
            width: parent.width
            height: picker.height

            Text {
                anchors { left: parent.left; right: picker.left; rightMargin: 8 }
                height: parent.height
                horizontalAlignment: Text.AlignLeft
                verticalAlignment: Text.AlignVCenter
                text: picker.label
                textFormat: Text.PlainText
                font: Fonts.regular13
                color: Colors.primaryText
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Fonts.smallest
                // It is the picker's accessible name.
                Accessible.ignored: true
            }

            SegmentedPicker {
                id: picker

                anchors.right: parent.right
                width: 280
                label: "Pick a theme"
                texts: ColorTheme.schemes
                selected: root.selectedScheme
                onPicked: text => { ColorTheme.selectedScheme = text; }
            }
        }
    }
}
