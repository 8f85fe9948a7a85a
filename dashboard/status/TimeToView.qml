// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The card of the time to empty or to full. For a full or held battery it is the time that the charge
// would last, which has an explanation.
CardView {
    id: root

    required property int chargeStatus
    // Its hours and minutes, either undefined while unknown.
    required property var time
    readonly property bool isResting: chargeStatus === ChargingStatus.Charged
        || chargeStatus === ChargingStatus.FinishingCharge
        || chargeStatus === ChargingStatus.Held

    isKnown: chargeStatus !== ChargingStatus.Unknown
        && time.hours !== undefined && time.minutes !== undefined
    title: isKnown ? titleOf(chargeStatus) : "Time"
    value: `${counted(time.hours ?? 0, "hour")} ${counted(time.minutes ?? 0, "minute")}`
    imageView: TimeToImageView {}
    textView: TimeToTextView {
        hours: root.time.hours ?? 0
        minutes: root.time.minutes ?? 0
    }
    moreInfoView: isResting ? moreInfo : null

    function titleOf(status: int): string {
        switch (status) {
        case ChargingStatus.Discharging:
            return "Time to empty";
        case ChargingStatus.Charging:
            return "Time to full";
        default:
            return "Time available";
        }
    }

    function counted(count: real, noun: string): string {
        return `${Dashboard.integerText(count)} ${noun}${count === 1 ? "" : "s"}`;
    }

    Component {
        id: moreInfo

        TimeToMoreInfoView {}
    }
}
