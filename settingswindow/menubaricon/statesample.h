// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "state/itemstate.h"

#include <QString>

namespace ferrin {

/// The settings window's texts and sample values for one battery state.
struct StateSample
{
    ItemState state = ItemState::discharging;
    /// Of the preview.
    BatteryChargingStatus status = BatteryChargingStatus::discharging;
    /// Percent.
    int charge = 0;
    /// Hours and minutes, such as "4:29"; empty for a state that never shows a time.
    QString time = {};
    /// Of the preview.
    QString caption = {};
    QString title = {};
    QString description = {};
    /// The label of the switch for the time; empty for a state that has no such switch.
    QString timeLabel = {};
};

[[nodiscard]] StateSample sampleOf(ItemState state);

} // namespace ferrin
