// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings
import Ferrin.Theme

// What the item shows in one battery state: the switches, the icon and a preview.
MakeBackgroundRectangle {
    id: root

    required property StateChoices choices
    property bool mustNoteBeScaled: false
    // A switch has just been turned back on: the note stands out if it may not move, and is the
    // accessible description of the switches.
    property bool isNoteDue: false
    readonly property bool stressesNote: isNoteDue && Theme.reducesMotion
    readonly property string noteText: "At least one element must be selected"

    title: choices.title

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Connections {
        target: root.choices

        function onLastOneKept() {
            root.mustNoteBeScaled = true;
            relaxation.restart();
            root.isNoteDue = true;
            reminder.restart();
        }
    }

    Timer {
        id: relaxation

        interval: 100
        onTriggered: root.mustNoteBeScaled = false
    }

    Timer {
        id: reminder

        interval: 3000
        onTriggered: root.isNoteDue = false
    }

    // qmllint disable unqualified
    component Switch: SwitchView {
        width: switches.width
        height: 20
        Accessible.description: root.isNoteDue ? root.noteText : ""
    }
    // qmllint enable unqualified

    Column {
        width: parent.width
        spacing: 7

        // The same height in every font, so that the sections stay aligned.
        Text {
            width: parent.width
            height: 30
            horizontalAlignment: Text.AlignLeft
            text: root.choices.description
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            lineHeightMode: Text.FixedHeight
            lineHeight: 15
            font: Fonts.regular12
            color: Colors.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Item {
            width: parent.width
            height: Math.max(switches.height, caption.y + caption.height)

            Column {
                id: switches

                anchors.left: parent.left
                width: 190
                spacing: 1

                Switch {
                    label: "Show icon"
                    isOn: root.choices.showIcon
                    onFlipped: on => root.choices.showIcon = on
                }

                Switch {
                    label: "Show charge %"
                    isOn: root.choices.showCharge
                    onFlipped: on => root.choices.showCharge = on
                }

                Switch {
                    visible: label !== ""
                    label: root.choices.timeLabel
                    isOn: root.choices.showTime
                    onFlipped: on => root.choices.showTime = on
                }
            }

            // Left of the preview, so that its popover does not cover the preview.
            ChooseIconButtonView {
                anchors { right: preview.left; rightMargin: 10; verticalCenter: preview.verticalCenter }
                showButton: root.choices.showIcon
                choices: root.choices
            }

            SettingsMBIMockupView {
                id: preview

                anchors.right: parent.right
                y: -1
                choices: root.choices
            }

            Text {
                id: caption

                anchors { left: preview.left; right: preview.right; top: preview.bottom }
                anchors.topMargin: 3
                height: 13
                horizontalAlignment: Text.AlignLeft
                text: root.choices.caption
                textFormat: Text.PlainText
                font: Fonts.regular10
                color: Colors.secondaryText
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Fonts.smallest
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            // As the desktop's own panel shows it. It may reach down beside the note, which is short.
            PanelPreview {
                id: inPanel

                anchors { right: parent.right; top: caption.bottom; topMargin: 2 }
                visible: isKnown
                choices: root.choices
                Accessible.role: Accessible.Graphic
                Accessible.ignored: !visible
                Accessible.name: "In your panel"
                Accessible.description: root.choices.sentence
            }

            Text {
                anchors { left: preview.left; verticalCenter: inPanel.verticalCenter }
                visible: inPanel.isKnown
                text: "In your panel"
                textFormat: Text.PlainText
                font: Fonts.regular10
                color: Colors.secondaryText
                Accessible.ignored: true
            }
        }

        ScaleTextEffect {
            width: parent.width
            trigger: root.mustNoteBeScaled

            Text {
                anchors.left: parent.left
                height: 14
                text: root.noteText
                textFormat: Text.PlainText
                font: root.stressesNote ? Fonts.semibold10 : Fonts.regular10
                color: root.stressesNote ? Colors.redIcon : Colors.secondaryText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
}
