// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"
#include "state/displayswitches.h"
#include "state/icon.h"

#include <span>

namespace ferrin {

class SettingsData;

/// The battery states that have settings of their own. There are fewer than charging statuses:
/// itemStateOf() in core/ says which status uses which settings.
enum class ItemState { discharging, charging, charged };

/// The three switches of a state.
struct ItemSwitches
{
    DisplaySwitch icon {};
    DisplaySwitch charge {};
    DisplaySwitch time {};
};

[[nodiscard]] ItemSwitches switchesOf(ItemState state);

/// The user's icon for a state. Read-only, and reading it never writes, so a binding may use it.
[[nodiscard]] Bindable<Icon> bindableIconSelected(ItemState state, SettingsData &settings);

void setIconSelected(ItemState state, Icon icon, SettingsData &settings);

/// The icons that can be selected for a state.
[[nodiscard]] std::span<const Icon> availableIcons(ItemState state);

} // namespace ferrin
