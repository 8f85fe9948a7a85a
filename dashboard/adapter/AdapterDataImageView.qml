// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// The wave of the volts and amps card.
Symbol {
    name: "waveform"
    size: 18
    color: Colors.blueIcon
}
