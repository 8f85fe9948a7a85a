// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard
import Ferrin.Quick

// What the battery's condition means.
MoreInfoSummaryView {
    required property int status

    width: 300
    imageName: imageOf(status)
    imageColor: status === Battery.Health.Normal ? Colors.greenIcon : Colors.redIcon
    text: textOf(status)
    summary: "You may see any of the following conditions:\n\n**Normal**: The battery is "
        + "functioning normally.\n\n**Service recommended**: The battery is performing normally, "
        + "but its ability to hold a charge is less than when it was new. You may want to consider "
        + "replacing the battery."

    function imageOf(health: int): string {
        switch (health) {
        case Battery.Health.Normal:
            return "checkmark.circle";
        case Battery.Health.Service:
            return "exclamationmark.triangle";
        default:
            return "";
        }
    }

    function textOf(health: int): string {
        switch (health) {
        case Battery.Health.Normal:
            return "Your battery health is **normal** and it's working correctly.";
        case Battery.Health.Service:
            return "**Service is recommended** for your battery. Contact Apple Inc. or an Apple "
                + "Inc. Authorized Service Provider.";
        default:
            return "";
        }
    }
}
