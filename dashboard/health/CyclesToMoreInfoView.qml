// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// What charge cycles are and how many are left.
MoreInfoSummaryView {
    id: root

    required property real currentCycles
    required property real designCycles

    readonly property string text1: `Your battery has a limited amount of ${designCycles} charge `
        + "cycles before their performance is expected to diminish. This value is known as "
        + `**design cycles**.\n\nOnce the cycle count ${designCycles} is reached, a replacement `
        + "battery is recommended to maintain performance.\n\nYou can use your battery after it reaches "
        + `${designCycles} cycle count, but you might notice a reduction in your battery life.`
    // In the text for too many cycles the last marker has no partner, so it is shown.
    readonly property string text2: "Your battery has gone through "
        + `**${currentCycles} charge cycles**, `
        + (designCycles >= currentCycles
           ? `of a total amount of **${designCycles} design cycles**.`
           : `exceeding the **${designCycles} design cycles.`)

    width: 400
    imageName: "arrow.clockwise"
    imageColor: Colors.yellowIcon
    text: text1
    secondText: text2
    summary: "When you use your laptop, its battery goes through **charge cycles**. A charge cycle "
        + "happens when you use all of the battery’s power—but that doesn’t necessarily mean in a "
        + "single charge.\n\nFor example, you could use half of your laptop's charge in one day, "
        + "and then recharge it fully. If you did the same thing the next day, it would count as "
        + "one charge cycle, not two. In this example, it might take several days to complete a cycle."
}
