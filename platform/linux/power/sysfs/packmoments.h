// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/packmoment.h"
#include "platform/linux/power/sysfs/pack.h"

namespace ferrin {

/// Under which a battery is remembered: its model, its design capacity and the name of its supply.
/// Nothing that tells one battery of a make from another, such as a serial number.
[[nodiscard]] std::string memoryKey(const BatterySupply &battery, const BatteryRecord &record);

/// The limit that is set for the charge of a battery, 1...99 percent; absent without one.
[[nodiscard]] std::optional<int> chargeLimit(const BatterySupply &battery);

/// The packs as the forecast sees them, without the phantoms. Batteries, packs and keys have the
/// same order. Empty when the charge of a pack is unknown: then there is nothing to forecast.
///
/// A pack that does not report its size is taken to be like the others, or of 50 Wh. A rate below
/// 0.1 W or above 300 W is none. The gauge's own time to empty goes before the rate, and its time
/// to full after it.
[[nodiscard]] std::vector<PackMoment> packMoments(const std::vector<BatterySupply> &batteries,
                                                  const std::vector<Pack> &packs,
                                                  const std::vector<std::string> &keys);

} // namespace ferrin
