// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <string>
#include <vector>

namespace ferrin {

/// The battery's part of the hardware report: for each system battery a section with its condition
/// ("Normal" or "Service Recommended") and its maximum capacity in percent of the design, at most
/// 100. The pack in the worst state comes first, because readers take the first figure that they
/// find. A line whose figure the machine does not know, or that cannot be right, is left out:
/// without a word on its health and without a usable design there is no condition either.
///
/// A pure function; records are those of the batteries, in their order.
[[nodiscard]] std::string powerReport(const PowerSupplies &supplies,
                                      const std::vector<BatteryRecord> &records);

} // namespace ferrin
