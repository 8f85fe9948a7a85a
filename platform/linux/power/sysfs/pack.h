// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <vector>

namespace ferrin {

/// One battery after its attributes have been checked against each other: in one family of units,
/// without signs, and without values that contradict others. It only depends on the present sample;
/// ChargeHistory corrects it by earlier ones.
///
/// Precedence:
/// - The percentage is the kernel's `capacity`, clamped to 100. If it is missing, negative, above
/// 120,
///   or 0 while now/full is clearly greater, it is now/full.
/// - `now` is the gauge's own, unless it exceeds full by more than a tenth or differs from the
///   percentage by more than 25 points (some gauges count it in another unit); then it is computed
///   from full and the percentage.
/// - Energy attributes are preferred to charge attributes. Charge is converted to energy by the
///   design voltage, else by the present one, which affects the relation to other packs, but not
///   the percentage.
/// - A gauge whose voltage register is saturated measures nothing; only its status is used.
/// - A gauge that reads 0 V and 0 % does not respond: it has neither a percentage nor `now`.
struct Pack
{
    std::optional<ChargeStatus> status;
    /// 0...100.
    std::optional<int> percent;
    /// µWh.
    Reading now;
    Reading full;
    /// mAh, rounded to the nearest; absent below 100, which was counted in another unit.
    Reading fullMilliampHours;
    /// µW, without a sign; the unfiltered value of the gauge.
    Reading rate;
    /// Seconds, more than 0 and at most 48 h; absent for a saturated 16-bit register.
    Reading timeToEmpty;
    Reading timeToFull;
    /// Another attribute than the charge confirms that the pack is empty.
    bool drained = false;
    /// A slot that is reported as present but measures nothing: no capacity, charge or voltage.
    bool phantom = false;

    bool operator==(const Pack &) const = default;
};

/// The packs of these batteries, in their order.
[[nodiscard]] std::vector<Pack> packsOf(const std::vector<BatterySupply> &batteries);

/// The design capacity in mAh, rounded; absent when the pack does not report it.
[[nodiscard]] Reading designMilliampHours(const BatterySupply &battery,
                                          const BatteryRecord &record);

/// The full-charge capacity as a percentage of the design capacity, at most 100, rounded down.
/// Absent when either is missing or the design capacity is not credible: a copy of the full-charge
/// capacity, or less than two thirds of it.
[[nodiscard]] std::optional<int> healthPercent(const BatterySupply &battery,
                                               const BatteryRecord &record);

} // namespace ferrin
