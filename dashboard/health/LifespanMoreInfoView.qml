// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import QtQuick

// The explanation of the lifespan verdict.
MoreInfoSummaryView {
    width: 400
}
