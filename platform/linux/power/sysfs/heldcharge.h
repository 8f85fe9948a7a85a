// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/pack.h"

namespace ferrin {

/// Whether the batteries are kept from charging below full, while power is external.
struct HeldCharge
{
    bool isHeld = false;
    /// They are so at this limit, in percent; absent when they are held elsewhere.
    std::optional<int> limit;

    bool operator==(const HeldCharge &) const = default;
};

/// The batteries are held when none charges or is drawn upon and one says "Not charging", or when
/// they stand at their limit, whatever they call that: older kernels say "Unknown", some drivers
/// "Full", and some "Discharging" with a rate of nothing. A pack at 95 % that has no limit is full.
/// A battery that is really discharged beside a weak adapter is not held.
///
/// `charge` and `limit` are of all packs together, in percent. At its limit is a battery also while
/// it has lost a little since; well above it, because the limit was lowered, it is not.
[[nodiscard]] HeldCharge heldCharge(const std::vector<Pack> &packs, std::optional<bool> external,
                                    std::optional<int> charge, std::optional<int> limit);

} // namespace ferrin
