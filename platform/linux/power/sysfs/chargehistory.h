// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/pack.h"

#include <chrono>
#include <string>
#include <vector>

namespace ferrin {

/// Keeps each pack's last plausible charge, because a failing gauge reads 0: while it wakes, when
/// its bus stalls, or at random. A pack that fell from above 5 % to 0 keeps its last charge (and
/// has no `now`) until it has read 0 for half a minute without interruption. A pack that reads 0
/// from the first sample on is accepted at once if its voltage or its level confirms it or if it is
/// not the only one, otherwise after the same time; until then its charge is absent.
///
/// A charge that cannot be read keeps its last value for the same time, since the user would
/// otherwise see that nothing is known; after that, and before the first one, it is absent.
class ChargeHistory
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Corrects the packs of these batteries (same order, sorted by name). Drops what is kept of
    /// batteries that are not among them.
    void settle(const std::vector<BatterySupply> &batteries, std::vector<Pack> &packs, Time moment);

private:
    struct Entry
    {
        std::string name;
        std::optional<int> lastPercent;
        /// Since when there has been no charge above 0.
        std::optional<Time> zeroSince;
    };

    [[nodiscard]] Entry take(const std::string &name);
    static void settle(Entry &entry, Pack &pack, Time moment, bool alone);

    std::vector<Entry> m_entries;
};

} // namespace ferrin
