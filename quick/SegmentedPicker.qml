// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A choice between a few texts, side by side. It never writes `selected`, which its user binds to the
// actual choice; it signals the change that is wanted. It is one stop of the Tab key; the arrow keys
// pick the neighbour.
FocusScope {
    id: root

    required property var texts
    required property string selected
    // The accessible name: what is chosen.
    required property string label

    // The user wants this text.
    signal picked(text: string)

    implicitWidth: 280
    implicitHeight: 26

    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Keys.onLeftPressed: root.move(LayoutMirroring.enabled ? 1 : -1)
    Keys.onUpPressed: root.move(-1)
    Keys.onRightPressed: root.move(LayoutMirroring.enabled ? -1 : 1)
    Keys.onDownPressed: root.move(1)

    function move(step: int) {
        const next = texts.indexOf(selected) + step;
        if (next < 0 || next >= texts.length)
            return;
        segments.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        root.picked(texts[next]);
    }

    RoundedRect {
        id: track

        anchors.fill: parent
        radius: 7
        color: Colors.segmentTrack
        borderWidth: Colors.outlineWidth
        borderColor: Colors.outline
    }

    Row {
        anchors { fill: track; margins: 2 }

        Repeater {
            id: segments

            model: root.texts

            // qmllint disable unqualified
            Pressable {
                id: segment

                required property string modelData
                readonly property bool isSelected: modelData === root.selected

                width: parent.width / segments.count
                height: parent.height
                spokenName: modelData
                // A focused item must stay in the tab order, or Tab gets stuck.
                activeFocusOnTab: isSelected || activeFocus
                focus: isSelected
                onPressed: {
                    segment.forceActiveFocus(Qt.MouseFocusReason);
                    root.picked(modelData);
                }

                Accessible.role: Accessible.RadioButton
                Accessible.checkable: true
                Accessible.checked: isSelected
                Accessible.onToggleAction: root.picked(modelData)

                RoundedRect {
                    id: mark

                    anchors.fill: parent
                    radius: 5
                    color: segment.isSelected ? Colors.accent : Colors.segmentHovered
                    visible: segment.isSelected || segment.isHovered
                }

                FocusRing {
                    anchors.margins: -3
                    radius: mark.radius + 3
                    owner: segment
                }

                Text {
                    anchors { fill: parent; leftMargin: 4; rightMargin: 4 }
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    text: segment.modelData
                    textFormat: Text.PlainText
                    font: Fonts.regular12
                    color: segment.isSelected ? Colors.accentText : Colors.primaryText
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Fonts.smallest
                }
            }
            // qmllint enable unqualified
        }
    }
}
