// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// Whether the program starts with the session.
MakeBackgroundRectangle {
    title: "App start"

    Column {
        width: parent.width
        topPadding: 5

        LaunchAtLoginToggle {
            width: parent.width
            label: "Launch at login"
        }
    }
}
