// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick
import Ferrin.Dashboard

// The card of the battery's condition.
CardView {
    id: root

    required property int status

    title: "Health"
    isKnown: status !== Battery.Health.Unknown
    value: status === Battery.Health.Normal ? "Normal" : "Service recommended"
    imageView: HealthStatusImageView { status: root.status }
    textView: HealthStatusTextView { text: root.value }
    moreInfoView: HealthStatusMoreInfoView {
        // qmllint disable unqualified
        status: root.status
        // qmllint enable unqualified
    }
}
