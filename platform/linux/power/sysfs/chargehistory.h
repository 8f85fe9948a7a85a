// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/pack.h"

#include <chrono>
#include <string>
#include <vector>

namespace ferrin {

/// Remembers each pack's last believable charge, because gauges fail by reading 0: while they wake,
/// when their bus stalls, at random. A pack that fell from above 5 % to 0 keeps its last charge
/// (and has no now) until it has said 0 without a break for half a minute. A pack that says 0 from
/// the first sample on is believed at once when its voltage or its level agrees or when it is not
/// the only one, else after the same time; until then its charge is absent.
///
/// A charge that cannot be read is the last one for as long, because the user would be shown that
/// nothing is known; after that, and before there was any, it is absent.
class ChargeHistory
{
public:
    using Time = std::chrono::milliseconds;

    /// Corrects the packs of these batteries (same order, sorted by name) at a monotonic moment.
    /// Forgets the batteries that are not among them.
    void settle(const std::vector<BatterySupply> &batteries, std::vector<Pack> &packs, Time moment);

private:
    struct Entry
    {
        std::string name;
        std::optional<int> lastPercent;
        /// Since when there was no charge above 0.
        std::optional<Time> doubtedSince;
    };

    [[nodiscard]] Entry take(const std::string &name);
    static void settle(Entry &entry, Pack &pack, Time moment, bool alone);

    std::vector<Entry> m_entries;
};

} // namespace ferrin
