// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import Ferrin.Settings

// The icons for a discharging battery.
IconPage {
    choices: MenuBarIcon.discharging
    dynamicIcons: choices.glyphs
    dynamicColumns: 4
    staticIcons: choices.symbols
    staticCaption: "Do not change according battery charge %"
}
