// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

import Ferrin.Settings

// The icons for a charged battery. Its level no longer changes, so none of them is dynamic.
IconPage {
    choices: MenuBarIcon.charged
    staticIcons: choices.icons
    staticCaption: "Do not change while battery is fully charged"
}
