// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <QString>

#include <vector>

namespace ferrin {

/// The slow facts of all packs together; pure functions, absent where no pack tells something that
/// can be right.

/// Charge cycles of the pack that has most. 0 is the kernel's word for "not available"; saturated
/// registers are dropped, and so is the gauge family that counts parts of a cycle.
[[nodiscard]] Reading greatestCycleCount(const std::vector<BatteryRecord> &records);

/// Sum in mAh; absent when one pack does not know.
[[nodiscard]] Reading designMilliampHours(const std::vector<BatterySupply> &batteries,
                                          const std::vector<BatteryRecord> &records);

/// Of the warmest pack, in hundredths of a degree Celsius, -4000...12000.
[[nodiscard]] Reading temperatureHundredths(const std::vector<BatteryRecord> &records);

/// Of the first pack that has one; empty when none has.
[[nodiscard]] QString serialNumber(const std::vector<BatteryRecord> &records);

} // namespace ferrin
