// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The image of a verdict: a check mark, with a warning badge if attention is needed.
Symbol {
    required property bool isGood

    name: isGood ? "checkmark.circle" : "checkmark.circle.trianglebadge.exclamationmark"
    size: isGood ? 18 : 17
    color: isGood ? Colors.greenIcon : Colors.redIcon
}
