// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The mark of a verdict: a check, with a warning where attention is due.
Symbol {
    required property bool isGood

    name: isGood ? "checkmark.circle" : "checkmark.circle.trianglebadge.exclamationmark"
    size: isGood ? 18 : 17
    color: isGood ? Colours.greenIcon : Colours.redIcon
}
