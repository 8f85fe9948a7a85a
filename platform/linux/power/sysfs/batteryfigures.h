// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/pack.h"

#include <vector>

namespace ferrin {

/// What all packs of the machine say together. Pure functions over packs and supplies; where they
/// cannot be right, they are absent. Slots that hold no pack count only when there is nothing else.

/// The packs without the phantoms, or all when there are only phantoms.
[[nodiscard]] std::vector<Pack> realPacks(std::vector<Pack> packs);

/// The charge of the machine, 0...100: of one pack its own, of several what is left in all over
/// what all hold, rounded down. A pack that does not tell its size weighs as much as the others do
/// on average. Absent when one pack's charge is unknown.
[[nodiscard]] std::optional<int> chargePercent(const std::vector<Pack> &packs);

/// Sums in mAh; absent when one pack does not know.
[[nodiscard]] Reading remainingMilliampHours(const std::vector<Pack> &packs);
[[nodiscard]] Reading fullMilliampHours(const std::vector<Pack> &packs);

/// Some pack says that it charges. A pack that says nothing, or Unknown, does not: its charge is
/// known all the same, and would be lost to the user if its state were not. Absent when no pack
/// tells its status or its charge.
[[nodiscard]] std::optional<bool> isCharging(const std::vector<Pack> &packs);

/// Every pack is full: it says so; or it stopped charging at 95 % or more on external power, which
/// controllers call Not charging and older drivers Unknown; or it is Unknown, all full and not
/// known to run the machine. A status that could not be read counts as Unknown. Absent when a pack
/// tells neither its status nor its charge.
[[nodiscard]] std::optional<bool> isFullyCharged(const std::vector<Pack> &packs,
                                                 std::optional<bool> external);

} // namespace ferrin
