// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The mark of the battery's condition.
VerdictImage {
    required property int status

    isGood: status === Battery.Health.Normal
}
