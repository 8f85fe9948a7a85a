// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import Ferrin.Quick
import Ferrin.Theme

// The frame of a popover in the application's colours.
PopoverFrame {
    ground: Colors.dashboardColor
    isDark: Theme.isDark
    line: Theme.isHighContrast ? Colors.outline : "transparent"
}
