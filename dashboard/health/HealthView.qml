// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The health section: the maximum capacity, the charge cycles, the condition and the lifespan.
Column {
    spacing: 10

    Row {
        spacing: 10

        MaxCapacityView {
            percent: Battery.maxCapacity
            KeyNavigation.right: cycles
            KeyNavigation.down: healthStatus
        }

        CyclesView {
            id: cycles

            currentCycles: Battery.chargeCycles
            designCycles: Battery.designCycles
            KeyNavigation.down: lifespan
        }
    }

    Row {
        spacing: 10

        HealthStatusView {
            id: healthStatus

            status: Battery.health
            KeyNavigation.right: lifespan
        }

        LifespanView {
            id: lifespan

            lifespan: Battery.lifespan
            currentCycles: Battery.chargeCycles
            designCycles: Battery.designCycles
            maxCapacity: Battery.maxCapacity
        }
    }
}
