// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import Ferrin.Settings

// The icons for a charging battery.
IconPage {
    choices: MenuBarIcon.charging
    dynamicIcons: choices.glyphs
    staticIcons: choices.symbols
    staticCaption: "Do not change according battery charge %"
}
