// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The card of the lifespan verdict. Too many cycles alone leave it good.
CardView {
    id: root

    required property int lifespan
    // Undefined while unknown.
    required property var currentCycles
    required property var designCycles
    required property var maxCapacity
    readonly property bool isGood: lifespan === Battery.Lifespan.Good
        || lifespan === Battery.Lifespan.ReducedCycles

    // The contents of the popover.
    readonly property string text: isKnown ? textOf(lifespan) : ""
    readonly property string summary: "All rechargeable batteries are consumables and have a "
        + "limited lifespan. Knowing how many charge cycles your battery has and how many are left "
        + "can help you determine when a battery replacement is required.\n\nYour battery is "
        + "designed to retain up to 80% of its original charge capacity and up to "
        + `${designCycles} charge cycles.\n\nYou may see any of the following conditions:\n\n`
        + "**Good**: Your battery maximum capacity is equal or above 80%.\n        \n**Reduced**: "
        + "Your battery maximum capacity is below 80%."
    readonly property string imageName: !isKnown ? ""
                                      : isGood ? "checkmark.circle" : "exclamationmark.triangle"
    readonly property color imageColor: isKnown && isGood ? Colors.greenIcon : Colors.redIcon

    title: "Lifespan"
    isKnown: lifespan !== Battery.Lifespan.Unknown
        && currentCycles !== undefined && designCycles !== undefined && maxCapacity !== undefined
    value: isGood ? "Good" : "Reduced"
    imageView: LifespanImageView { lifespan: root.lifespan }
    textView: LifespanTextView { text: root.value }
    moreInfoView: LifespanMoreInfoView {
        // qmllint disable unqualified
        text: root.text
        summary: root.summary
        imageName: root.imageName
        imageColor: root.imageColor
        // qmllint enable unqualified
    }

    function textOf(verdictOnAge: int): string {
        switch (verdictOnAge) {
        case Battery.Lifespan.Good:
            return `As your maximum capacity is still ${maxCapacity}% and you have done less than `
                + `${designCycles} charge cycles, the lifespan of your battery is **good**.`;
        case Battery.Lifespan.ReducedMaxCap:
            return `As you have done less than ${designCycles} charge cycles but your maximum `
                + `capacity is ${maxCapacity}% (less than 80%), the lifespan of your battery is `
                + "**reduced**. You may want to consider replacing the battery.";
        case Battery.Lifespan.ReducedCycles:
            return `As your maximum capacity is still ${maxCapacity}% and you have done more than `
                + `${designCycles} charge cycles, the lifespan of your battery is still **good**.`;
        case Battery.Lifespan.ReducedMaxCapAndCycles:
            return `As your maximum capacity is ${maxCapacity}% (less than 80%) and you have done `
                + `more than ${designCycles} charge cycles, the lifespan of your battery is `
                + "reduced. You may want to consider replacing the battery.";
        default:
            return "";
        }
    }
}
