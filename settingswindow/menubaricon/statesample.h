// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "state/displayswitches.h"
#include "state/icon.h"

#include <QString>

#include <span>

namespace ferrin {

/// What the settings window says and shows of one battery state, apart from what the user chose.
struct StateSample
{
    BatteryChargingStatus status = BatteryChargingStatus::discharging;
    DisplaySwitch showIcon {};
    DisplaySwitch showCharge {};
    DisplaySwitch showTime {};
    std::span<const Icon> icons = {};
    /// Percent.
    int charge = 0;
    /// "4:29"; empty where no time is ever shown.
    QString time = {};
    /// Of the preview.
    QString caption = {};
    QString title = {};
    QString description = {};
    /// Of the switch of the time; empty where there is none to be seen.
    QString timeLabel = {};
};

/// Of the three states with choices of their own: discharging, charging and charged.
[[nodiscard]] StateSample sampleOf(BatteryChargingStatus status);

} // namespace ferrin
