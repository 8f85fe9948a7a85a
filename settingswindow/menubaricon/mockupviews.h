// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemviews.h"

namespace ferrin {

/// The seven layouts of the previews. They are the menu bar item's own views, so that the preview
/// cannot drift from the item.
using MockupWithTimeView = MenuBarTimeView;
using MockupWithChargeView = MenuBarChargeView;
using MockupWithIconView = MenuBarIconView;
using MockupWithChargeTimeView = MenuBarChargeTimeView;
using MockupWithTimeIconView = MenuBarTimeIconView;
using MockupWithChargeIconView = MenuBarChargeIconView;
using MockupWithChargeTimeIconView = MenuBarChargeTimeIconView;

} // namespace ferrin
