// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// What the updater's session is at, and what can be done about it. While it is at work nothing has
// the keyboard by itself, so that the key that began it does not also stop it.
FocusScope {
    id: root

    readonly property int stage: SoftwareUpdates.stage
    readonly property bool isAtWork: stage === SoftwareUpdates.Stage.Checking
                                     || stage === SoftwareUpdates.Stage.Downloading
    readonly property bool isOffer: stage === SoftwareUpdates.Stage.Available
                                    || stage === SoftwareUpdates.Stage.ReadyToInstall

    implicitWidth: 460
    implicitHeight: Math.max(56, column.height) + 40
    focus: true

    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text
    Accessible.description: message.text

    Keys.onEscapePressed: root.decline()
    Component.onCompleted: root.placeFocus()
    onStageChanged: settled.restart()

    // The answers come after the stage.
    Timer {
        id: settled

        interval: 0
        onTriggered: root.placeFocus()
    }

    function placeFocus() {
        if (isAtWork)
            rest.forceActiveFocus(Qt.OtherFocusReason);
        else
            main.forceActiveFocus(Qt.OtherFocusReason);
    }

    function headingOf(stage: int): string {
        switch (stage) {
        case SoftwareUpdates.Stage.Checking:
            return "Checking for updates…";
        case SoftwareUpdates.Stage.UpToDate:
            return "Ferrin is up to date";
        case SoftwareUpdates.Stage.Available:
            return `Ferrin ${SoftwareUpdates.version} is available`;
        case SoftwareUpdates.Stage.Downloading:
            return `Downloading Ferrin ${SoftwareUpdates.version}`;
        case SoftwareUpdates.Stage.ReadyToInstall:
            return `Ferrin ${SoftwareUpdates.version} is ready to install`;
        case SoftwareUpdates.Stage.Failed:
            return "The update did not succeed";
        default:
            return "";
        }
    }

    function messageOf(stage: int): string {
        switch (stage) {
        case SoftwareUpdates.Stage.Checking:
            return "Asking the update server.";
        case SoftwareUpdates.Stage.UpToDate:
            return `Version ${SoftwareUpdates.installedVersion} is the newest one.`;
        case SoftwareUpdates.Stage.Available:
            return SoftwareUpdates.offer;
        case SoftwareUpdates.Stage.Downloading:
            return SoftwareUpdates.progressText;
        case SoftwareUpdates.Stage.ReadyToInstall:
            return "The package is downloaded and verified. The system's installer does the rest, "
                + "and Ferrin restarts by itself once its windows are closed.";
        case SoftwareUpdates.Stage.Failed:
            return SoftwareUpdates.failure;
        default:
            return "";
        }
    }

    function mainAnswerOf(stage: int): string {
        switch (stage) {
        case SoftwareUpdates.Stage.UpToDate:
            return "Close";
        case SoftwareUpdates.Stage.Available:
            return "Download";
        case SoftwareUpdates.Stage.ReadyToInstall:
            return "Install";
        case SoftwareUpdates.Stage.Failed:
            return "Try again";
        default:
            return "";
        }
    }

    function otherAnswerOf(stage: int): string {
        switch (stage) {
        case SoftwareUpdates.Stage.Checking:
        case SoftwareUpdates.Stage.Downloading:
            return "Cancel";
        case SoftwareUpdates.Stage.Available:
        case SoftwareUpdates.Stage.ReadyToInstall:
            return "Later";
        case SoftwareUpdates.Stage.Failed:
            return "Close";
        default:
            return "";
        }
    }

    function accept() {
        switch (stage) {
        case SoftwareUpdates.Stage.UpToDate:
            SoftwareUpdates.later();
            break;
        case SoftwareUpdates.Stage.Available:
            SoftwareUpdates.download();
            break;
        case SoftwareUpdates.Stage.ReadyToInstall:
            SoftwareUpdates.install();
            break;
        case SoftwareUpdates.Stage.Failed:
            SoftwareUpdates.tryAgain();
            break;
        }
    }

    function decline() {
        if (isAtWork)
            SoftwareUpdates.cancel();
        else
            SoftwareUpdates.later();
    }

    Rectangle {
        anchors.fill: parent
        color: Colours.settingsBackground
    }

    // Has the focus while no button has.
    Item {
        id: rest
    }

    Image {
        x: 20
        y: 20
        width: 56
        height: 56
        source: "qrc:/icons/org.ferrin.Ferrin.svg"
        sourceSize { width: 56; height: 56 }
        Accessible.ignored: true
    }

    Column {
        id: column

        anchors { left: parent.left; leftMargin: 92; right: parent.right; rightMargin: 20 }
        y: 20
        spacing: 6

        Text {
            id: heading

            width: parent.width
            text: root.headingOf(root.stage)
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Fonts.bold14
            color: Colours.primaryText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        ProgressBar {
            width: parent.width
            visible: root.stage === SoftwareUpdates.Stage.Downloading
            value: SoftwareUpdates.progress
            spokenName: "Downloaded"
        }

        Row {
            width: parent.width
            spacing: 8

            Spinner {
                id: spinner

                anchors.verticalCenter: parent.verticalCenter
                visible: root.stage === SoftwareUpdates.Stage.Checking
            }

            Text {
                id: message

                width: parent.width - (spinner.visible ? spinner.width + 8 : 0)
                text: root.messageOf(root.stage)
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font: Fonts.regular12
                color: Colours.secondaryText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }

        ReleaseNotesView {
            width: parent.width
            visible: root.stage === SoftwareUpdates.Stage.Available && notes !== ""
            notes: SoftwareUpdates.notes
        }

        Item {
            width: parent.width
            height: answers.height + 10

            PlainButton {
                anchors { left: parent.left; bottom: parent.bottom }
                text: "Skip this version"
                visible: root.isOffer
                onPressed: SoftwareUpdates.skipThisVersion()
            }

            Row {
                id: answers

                anchors { right: parent.right; bottom: parent.bottom }
                spacing: 10

                PlainButton {
                    text: root.otherAnswerOf(root.stage)
                    visible: text !== ""
                    onPressed: root.decline()
                }

                ProminentButton {
                    id: main

                    text: root.mainAnswerOf(root.stage)
                    visible: text !== ""
                    onPressed: root.accept()
                }
            }
        }
    }
}
