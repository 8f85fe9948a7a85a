// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The mark of the verdict over the battery's age. Nothing while there is none.
VerdictImage {
    required property int lifespan

    isGood: lifespan === Battery.Lifespan.Good || lifespan === Battery.Lifespan.ReducedCycles
    visible: lifespan !== Battery.Lifespan.Unknown
}
