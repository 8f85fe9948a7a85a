// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The maker's logo if there is artwork for it, else a badge.
Symbol {
    required property string manufacturer
    readonly property bool isApple: Adapter.isApple(manufacturer)

    name: isApple ? "apple.logo" : "person.text.rectangle"
    size: isApple ? 20 : 16
    color: Colors.cardTitleColor
}
