// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Quick

// A percentage as a ring from red to green.
Gauge {
    required property real percent

    value: percent / 100
    colors: [Colors.gaugeRed, Colors.gaugeOrange, Colors.gaugeYellow, Colors.gaugeGreen]
    trackColor: Colors.gaugeTrack
}
