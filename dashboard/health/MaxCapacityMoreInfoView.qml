// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// What the maximum capacity means.
MoreInfoSummaryView {
    required property real percent

    width: 300
    imageName: "bolt.circle"
    imageColor: Colors.greenIcon
    text: `Your battery has a **${percent}% maximum capacity**, meaning that it can retain `
        + `${percent}% of charge compared to when it was new.`
    summary: "As lithium-ion batteries chemically age, the amount of charge they can hold "
        + "diminishes, resulting in shorter amounts of time before a device needs to be recharged."
        + "\n\nThis can be referred to as the battery’s **maximum capacity** — the measure of "
        + "battery capacity relative to when it was new."
}
