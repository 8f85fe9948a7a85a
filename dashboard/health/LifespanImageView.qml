// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The image of the lifespan verdict; nothing while it is unknown.
VerdictImage {
    required property int lifespan

    isGood: lifespan === Battery.Lifespan.Good || lifespan === Battery.Lifespan.ReducedCycles
    visible: lifespan !== Battery.Lifespan.Unknown
}
