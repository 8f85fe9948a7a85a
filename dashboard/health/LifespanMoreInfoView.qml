// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// What the verdict over the battery's age rests on.
MoreInfoSummaryView {
    width: 400
}
