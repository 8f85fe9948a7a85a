// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The status section: the charge, the time left, the battery's state and the power source.
Column {
    spacing: 10

    Row {
        spacing: 10

        ChargeNowView {
            id: chargeNow

            percent: Battery.charge
            KeyNavigation.right: timeTo
            KeyNavigation.down: currently
        }

        TimeToView {
            id: timeTo

            chargeStatus: Battery.chargingStatus
            time: ({ hours: Battery.hours, minutes: Battery.minutes })
            KeyNavigation.down: powerSource
        }
    }

    Row {
        spacing: 10

        CurrentlyView {
            id: currently

            status: Battery.chargingStatus
            limit: Battery.chargeLimit
            KeyNavigation.right: powerSource
        }

        PowerSourceView {
            id: powerSource

            powerSource: Battery.powerSource
            charge: Battery.charge
        }
    }
}
