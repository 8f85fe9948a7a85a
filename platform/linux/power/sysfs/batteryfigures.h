// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/pack.h"

#include <vector>

namespace ferrin {

/// The figures of the whole machine, computed from all packs. Pure functions; a figure that cannot
/// be right is absent.

/// The packs without the phantoms, or all when there are only phantoms.
[[nodiscard]] std::vector<Pack> realPacks(std::vector<Pack> packs);

/// The charge of the machine, 0...100: that of the only pack, or the sum of what is left divided by
/// the sum of the capacities, rounded down. A pack of unknown capacity counts with the average of
/// the others. Absent when the charge of any pack is unknown.
[[nodiscard]] std::optional<int> chargePercent(const std::vector<Pack> &packs);

/// Sums in mAh; absent when the value of any pack is unknown.
[[nodiscard]] Reading remainingMilliampHours(const std::vector<Pack> &packs);
[[nodiscard]] Reading fullMilliampHours(const std::vector<Pack> &packs);

/// Whether any pack reports Charging. A pack with the status Unknown or without one does not
/// charge: if the result were absent, the user would not see its charge either. Absent when no pack
/// has a status or a charge.
[[nodiscard]] std::optional<bool> isCharging(const std::vector<Pack> &packs);

/// Whether every pack is full: it reports Full; or it has 95 % or more on external power and does
/// not charge, which is reported as Not charging, by older drivers as Unknown; or it reports
/// Unknown at 100 % and the machine is not known to run on battery. A status that could not be read
/// counts as Unknown. Absent when a pack has neither a status nor a charge.
[[nodiscard]] std::optional<bool> isFullyCharged(const std::vector<Pack> &packs,
                                                 std::optional<bool> external);

} // namespace ferrin
