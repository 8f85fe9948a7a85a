// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the adapter's voltage and current.
AdapterCardView {
    id: root

    // V and A; undefined while nothing is stored.
    required property var voltage
    required property var current

    title: "Volts & amps"
    isPresent: voltage !== undefined && current !== undefined
    isEmpty: voltage === 0 || current === 0
    imageView: AdapterDataImageView {}
    valueView: AdapterDataTextView {
        voltage: root.voltage ?? 0
        current: root.current ?? 0
    }
    valueInWords: `${Adapter.decimalText(voltage ?? 0)} volts, `
        + `${Adapter.decimalText(current ?? 0)} amps`
}
