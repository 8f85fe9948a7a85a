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
    isKnown: status !== ChargingStatus.Unknown
    value: verdictOf(status)
    imageView: Symbol {
        name: root.symbolOf(root.status)
        size: 18
        color: root.status === ChargingStatus.Discharging ? Colors.redIcon : Colors.greenIcon
    }
    textView: GenericTextView { text: root.value }

    function verdictOf(batteryStatus: int): string {
        switch (batteryStatus) {
        case ChargingStatus.Discharging:
            return "Discharging";
        case ChargingStatus.Charging:
            return "Charging";
        case ChargingStatus.Charged:
            return "Charged";
        case ChargingStatus.FinishingCharge:
            return "Finishing charge";
        case ChargingStatus.Held:
            return limit === undefined ? "Not charging"
                                       : `Held at ${Dashboard.integerText(limit)}%`;
        default:
            return "";
        }
    }

    function symbolOf(batteryStatus: int): string {
        switch (batteryStatus) {
        case ChargingStatus.Discharging:
            return "arrow.down";
        case ChargingStatus.Charging:
            return "arrow.up";
        case ChargingStatus.Held:
            return "pause";
        default:
            return "arrow.up.to.line";
        }
    }
}
