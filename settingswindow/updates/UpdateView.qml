// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings
import Ferrin.Theme

// What the updater's session is at, and what can be done about it. No answer has the keyboard by
// itself, so that a key that was meant for something else neither stops nor installs anything.
FocusScope {
    id: root

    readonly property int stage: SoftwareUpdates.stage
    readonly property bool isAtWork: stage === SoftwareUpdates.Stage.Checking
                                     || stage === SoftwareUpdates.Stage.Downloading
                                     || stage === SoftwareUpdates.Stage.Installing
    readonly property bool isOffer: stage === SoftwareUpdates.Stage.Available
                                    || stage === SoftwareUpdates.Stage.ReadyToInstall

    implicitWidth: 460
    implicitHeight: Math.max(56, column.height) + 40
    focus: true

    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text
    Accessible.description: message.text

    Keys.onEscapePressed: root.decline()
    Component.onCompleted: rest.forceActiveFocus(Qt.OtherFocusReason)
    onStageChanged: rest.forceActiveFocus(Qt.OtherFocusReason)

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
        case SoftwareUpdates.Stage.Installing:
            return `Installing Ferrin ${SoftwareUpdates.version}`;
        case SoftwareUpdates.Stage.Installed:
            return `Ferrin ${SoftwareUpdates.version} is installed`;
        case SoftwareUpdates.Stage.Failed:
            return "The update did not succeed";
        default:
            return "";
        }
    }

    function messageOf(stage: int): string {
        switch (stage) {
        case SoftwareUpdates.Stage.Checking:
            return SoftwareUpdates.progressText;
        case SoftwareUpdates.Stage.UpToDate:
            return `You have version ${SoftwareUpdates.installedVersion}. `
                + "The package sources offer no newer one.";
        case SoftwareUpdates.Stage.Available:
            return SoftwareUpdates.offer;
        case SoftwareUpdates.Stage.Downloading:
        case SoftwareUpdates.Stage.Installing:
            return SoftwareUpdates.progressText;
        case SoftwareUpdates.Stage.ReadyToInstall:
            return "The package is downloaded. The system asks for your password before it "
                + "installs it.";
        case SoftwareUpdates.Stage.Installed:
            return "Ferrin restarts by itself once its windows are closed.";
        case SoftwareUpdates.Stage.Failed:
            return SoftwareUpdates.failure;
        default:
            return "";
        }
    }

    function mainAnswerOf(stage: int): string {
        switch (stage) {
        case SoftwareUpdates.Stage.UpToDate:
        case SoftwareUpdates.Stage.Installed:
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
        case SoftwareUpdates.Stage.Installing:
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
        case SoftwareUpdates.Stage.Installed:
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

    Shortcut {
        sequence: "Ctrl+W"
        autoRepeat: false
        onActivated: root.decline()
    }

    Shortcut {
        sequence: "F1"
        autoRepeat: false
        onActivated: Links.open(Links.faq)
    }

    Rectangle {
        anchors.fill: parent
        color: Colors.settingsBackground
    }

    // Has the focus until the user moves it.
    Item {
        id: rest
    }

    Image {
        anchors { left: parent.left; leftMargin: 20 }
        y: 20
        width: 56
        height: 56
        source: "qrc:/icons/org.ferrin.Ferrin.svg"
        sourceSize { width: 56 * Theme.textScale; height: 56 * Theme.textScale }
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
            horizontalAlignment: Text.AlignLeft
            text: root.headingOf(root.stage)
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Fonts.bold14
            color: Colors.primaryText
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        ProgressBar {
            width: parent.width
            visible: root.isAtWork && SoftwareUpdates.progress >= 0
            value: SoftwareUpdates.progress
            spokenName: "Progress"
        }

        Row {
            width: parent.width
            spacing: 8

            Spinner {
                id: spinner

                anchors.verticalCenter: parent.verticalCenter
                visible: root.isAtWork && SoftwareUpdates.progress < 0
            }

            Text {
                id: message

                width: parent.width - (spinner.visible ? spinner.width + 8 : 0)
                horizontalAlignment: Text.AlignLeft
                text: root.messageOf(root.stage)
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font: Fonts.regular12
                color: Colors.secondaryText
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
                    isUnavailable: root.isAtWork && !SoftwareUpdates.canCancel
                    onPressed: root.decline()
                }

                ProminentButton {
                    text: root.mainAnswerOf(root.stage)
                    visible: text !== ""
                    onPressed: root.accept()
                }
            }
        }
    }
}
