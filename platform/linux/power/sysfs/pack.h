// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <vector>

namespace ferrin {

/// One battery after its attributes were held against each other: one unit family, magnitudes
/// instead of signs, and nothing that another attribute contradicts. Pure values; what remembers
/// earlier samples stands in ChargeHistory.
///
/// Which figure wins:
/// - The charge is the kernel's capacity, clamped to 100. Where it is missing, negative, beyond
///   anything that rounding explains, or 0 while now and full clearly say otherwise, it is
///   now/full.
/// - Now is the gauge's own, unless it is more than a tenth above full or a quarter away from the
///   charge (some gauges count it in another unit); then it is the charge's part of full.
/// - Energy attributes go before charge attributes. Charge becomes energy by the design voltage,
///   else by the present one: only the relation to other packs depends on it, never the percent.
/// - A gauge whose voltage register is saturated measures nothing: only its status is left.
/// - A gauge that reads 0 V with a charge of 0 is not answering: it has neither charge nor now.
struct Pack
{
    std::optional<ChargeStatus> status;
    /// 0...100.
    std::optional<int> percent;
    /// µWh.
    Reading now;
    Reading full;
    /// mAh, rounded to the nearest, at least 100: less was counted in another unit.
    Reading fullMilliampHours;
    /// µW, magnitude; what the gauge says at this moment, noise and nonsense included.
    Reading rate;
    /// Seconds, more than 0 and at most 48 h, and not a 16-bit register at its end.
    Reading timeToEmpty;
    Reading timeToFull;
    /// The pack says by other means than its charge that there is nothing left in it.
    bool drained = false;
    /// A slot that claims to hold a pack but measures none: neither full, nor charge, nor voltage.
    bool phantom = false;

    bool operator==(const Pack &) const = default;
};

/// The packs of these batteries, in their order.
[[nodiscard]] std::vector<Pack> packsOf(const std::vector<BatterySupply> &batteries);

/// The full-charge capacity that the pack was made for in mAh, rounded; absent when the pack does
/// not say.
[[nodiscard]] Reading designMilliampHours(const BatterySupply &battery,
                                          const BatteryRecord &record);

/// Present full charge as a percentage of the design, at most 100, rounded down. Absent when either
/// is missing or the design is no measure: a copy of the present value, or less than two thirds of
/// it.
[[nodiscard]] std::optional<int> healthPercent(const BatterySupply &battery,
                                               const BatteryRecord &record);

} // namespace ferrin
