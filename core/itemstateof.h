// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "state/itemstate.h"

namespace ferrin {

/// The settings that apply while the battery has this status.
[[nodiscard]] constexpr ItemState itemStateOf(BatteryChargingStatus status)
{
    switch (status) {
    case BatteryChargingStatus::discharging:
        return ItemState::discharging;
    case BatteryChargingStatus::charging:
        return ItemState::charging;
    case BatteryChargingStatus::charged:
    case BatteryChargingStatus::finishingCharge:
    case BatteryChargingStatus::unknown:
    case BatteryChargingStatus::held:
        return ItemState::charged;
    }
    Q_UNREACHABLE();
}

} // namespace ferrin
