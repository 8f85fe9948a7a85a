// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "state/itemstate.h"

#include <QString>

namespace ferrin {

/// What the settings window says and shows of one battery state, apart from what the user chose.
struct StateSample
{
    ItemState state = ItemState::discharging;
    /// Of the preview.
    BatteryChargingStatus status = BatteryChargingStatus::discharging;
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

[[nodiscard]] StateSample sampleOf(ItemState state);

} // namespace ferrin
