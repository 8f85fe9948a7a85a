// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick
import Ferrin.Settings

// Asks for an update now, and decides what the updater does by itself. The switches show what they
// were when the view was made, and what the user made of them since.
Column {
    id: root

    property bool automaticallyChecksForUpdates: SoftwareUpdates.automaticallyChecksForUpdates()
    property bool automaticallyDownloadsUpdates: SoftwareUpdates.automaticallyDownloadsUpdates()

    spacing: 4

    ProminentButton {
        anchors.left: parent.left
        text: "Check for Updates…"
        isUnavailable: !SoftwareUpdates.canCheckForUpdates
        // Those who do not see that it rests are not told by its state.
        Accessible.description: {
            if (!isUnavailable)
                return "";
            return SoftwareUpdates.isSupported ? "A check is running" : SoftwareUpdates.note;
        }
        onPressed: SoftwareUpdates.checkForUpdates()
    }

    // With the spacing around it, ten.
    Item {
        width: 1
        height: 2
    }

    SwitchView {
        width: parent.width
        height: 20
        isUnavailable: !SoftwareUpdates.isSupported
        label: "Automatically check for updates"
        isOn: root.automaticallyChecksForUpdates
        onFlipped: on => {
            SoftwareUpdates.setAutomaticallyChecksForUpdates(on);
            root.automaticallyChecksForUpdates = SoftwareUpdates.automaticallyChecksForUpdates();
        }
    }

    SwitchView {
        width: parent.width
        height: 20
        isUnavailable: !SoftwareUpdates.isSupported
        label: "Automatically download updates"
        isOn: root.automaticallyDownloadsUpdates
        onFlipped: on => {
            SoftwareUpdates.setAutomaticallyDownloadsUpdates(on);
            root.automaticallyDownloadsUpdates = SoftwareUpdates.automaticallyDownloadsUpdates();
        }
    }
}
