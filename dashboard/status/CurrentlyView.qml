// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// The card of what the battery is doing.
CardView {
    id: root

    required property int status
    // Where a held battery is held; undefined when it is held for another reason.
    property var limit

    title: "Battery is"
    isKnown: status !== Battery.ChargingStatus.Unknown
    value: verdictOf(status)
    imageView: Symbol {
        name: root.symbolOf(root.status)
        size: 18
        color: root.status === Battery.ChargingStatus.Discharging ? Colours.redIcon
                                                                  : Colours.greenIcon
    }
    textView: GenericTextView { text: root.value }

    function verdictOf(batteryStatus: int): string {
        switch (batteryStatus) {
        case Battery.ChargingStatus.Discharging:
            return "Discharging";
        case Battery.ChargingStatus.Charging:
            return "Charging";
        case Battery.ChargingStatus.Charged:
            return "Charged";
        case Battery.ChargingStatus.FinishingCharge:
            return "Finishing charge";
        case Battery.ChargingStatus.Held:
            return limit === undefined ? "Not charging" : `Held at ${limit}%`;
        default:
            return "";
        }
    }

    function symbolOf(batteryStatus: int): string {
        switch (batteryStatus) {
        case Battery.ChargingStatus.Discharging:
            return "arrow.down";
        case Battery.ChargingStatus.Charging:
            return "arrow.up";
        case Battery.ChargingStatus.Held:
            return "pause";
        default:
            return "arrow.up.to.line";
        }
    }
}
