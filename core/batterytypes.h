// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

namespace ferrin {

/// The current source of power.
enum class PowerSource { battery, external, unknown };

/// What the battery is doing now. `finishingCharge`: the system reports charging while the charge
/// already reads 100. `charged`: fully charged on external power. `held`: on external power, and
/// kept from charging below full, usually at a limit that the user has set.
enum class BatteryChargingStatus { charging, discharging, charged, finishingCharge, unknown, held };

/// The battery's condition.
enum class BatteryHealth { normal, service, unknown };

/// How far the remaining time can be trusted. `real`: the system's own figure; `estimated`:
/// computed here, or the system is still calculating; `frozen`: no usable time, the last value
/// stays.
enum class TimeQuality { real, estimated, frozen };

/// The assessment of the battery's age.
enum class BatteryLifespan { good, reducedMaxCap, reducedCycles, reducedMaxCapAndCycles, unknown };

} // namespace ferrin
