// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <string>
#include <vector>

namespace ferrin {

/// The battery's part of the hardware report: for each system battery a section with its condition
/// ("Normal" or "Service Recommended") and its maximum capacity in percent of the design, at most
/// 100. The pack in the worst state comes first, because readers use the first figure that they
/// find. A line is omitted when its figure is not known or cannot be right: without a `health` and
/// without a usable design capacity there is no condition either.
///
/// A pure function; `records` belong to the batteries, in the same order.
[[nodiscard]] std::string powerReport(const PowerSupplies &supplies,
                                      const std::vector<BatteryRecord> &records);

} // namespace ferrin
