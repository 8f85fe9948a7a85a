// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The power-adapter section: what is known about the last adapter that was seen.
Column {
    spacing: 10

    Row {
        spacing: 10

        AdapterWattsView {
            watts: Adapter.watts
            powerSource: Battery.powerSource
            KeyNavigation.right: data
            KeyNavigation.down: name
        }

        AdapterDataView {
            id: data

            voltage: Adapter.voltage
            current: Adapter.current
            powerSource: Battery.powerSource
            KeyNavigation.down: manufacturer
        }
    }

    Row {
        spacing: 10

        AdapterNameView {
            id: name

            name: Adapter.name
            powerSource: Battery.powerSource
            KeyNavigation.right: manufacturer
        }

        AdapterManufacturerView {
            id: manufacturer

            manufacturer: Adapter.manufacturer
            powerSource: Battery.powerSource
        }
    }
}
