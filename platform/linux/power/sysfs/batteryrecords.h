// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <QString>

#include <vector>

namespace ferrin {

/// The slow figures of the whole machine, computed from all packs. Pure functions; absent when no
/// pack has a plausible value.

/// The greatest cycle count of any pack. Ignored are 0, which means "not available"
/// (https://www.kernel.org/doc/Documentation/ABI/testing/sysfs-class-power), saturated registers,
/// and gauges that count fractions of a cycle.
[[nodiscard]] Reading greatestCycleCount(const std::vector<BatteryRecord> &records);

/// Sum in mAh; absent when the value of any pack is unknown.
[[nodiscard]] Reading designMilliampHours(const std::vector<BatterySupply> &batteries,
                                          const std::vector<BatteryRecord> &records);

/// Of the warmest pack, in hundredths of a degree Celsius, -4000...12000.
[[nodiscard]] Reading temperatureHundredths(const std::vector<BatteryRecord> &records);

/// The serial number of the first pack that has one; empty when none has.
[[nodiscard]] QString serialNumber(const std::vector<BatteryRecord> &records);

} // namespace ferrin
