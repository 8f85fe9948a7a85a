// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// The acknowledgement texts of the components. The arrow and page keys scroll them wherever the focus
// is on the sheet.
FocusScope {
    id: root

    readonly property string textAckSparkle: BundleInformation.text("AckSparkle")
    readonly property string textAckLaunchAtLogin: BundleInformation.text("AckLaunchAtLogin")
    readonly property string textAckMenuBarExtraAcces: BundleInformation.text("AckMenuBarExtraAcces")

    // The sheet should close.
    signal done

    implicitWidth: 600
    implicitHeight: 400

    Keys.onUpPressed: bar.scrollBy(-40)
    Keys.onDownPressed: bar.scrollBy(40)
    Keys.onPressed: event => {
        const page = view.height - 40;
        const steps = new Map([[Qt.Key_PageUp, -page], [Qt.Key_PageDown, page],
                               [Qt.Key_Home, -view.contentHeight], [Qt.Key_End, view.contentHeight]]);
        if (steps.has(event.key)) {
            bar.scrollBy(steps.get(event.key));
            event.accepted = true;
        }
    }

    Flickable {
        id: view

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            bottom: line.top
            topMargin: 1
        }
        clip: true
        contentHeight: texts.height
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: texts

            x: 24
            width: view.width - 48
            topPadding: 20
            bottomPadding: 20
            spacing: 28

            Repeater {
                // qmllint disable unqualified
                model: [root.textAckSparkle, root.textAckLaunchAtLogin,
                        root.textAckMenuBarExtraAcces]

                SettingsText {
                    required property string modelData

                    // As it was written.
                    LayoutMirroring.enabled: false
                    width: texts.width
                    visible: text !== ""
                    text: modelData
                    lineHeight: 1.15
                    font: Fonts.regular12
                }
                // qmllint enable unqualified
            }
        }
    }

    ScrollBar {
        id: bar

        anchors { top: view.top; bottom: view.bottom; right: parent.right; margins: 3; rightMargin: 1 }
        flickable: view
    }

    Rectangle {
        id: line

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 51 }
        height: 1
        color: Colors.settingsDivider
    }

    ProminentButton {
        anchors { right: parent.right; rightMargin: 16; bottom: parent.bottom; bottomMargin: 13 }
        focus: true
        text: "Done"
        onPressed: root.done()
    }
}
