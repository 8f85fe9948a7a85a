// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/chargehistory.h"

#include <algorithm>

namespace ferrin {

using namespace std::chrono_literals;

namespace {

constexpr auto acceptedAfter = 30s;
constexpr int nearlyEmptyPercent = 5;

} // namespace

void ChargeHistory::settle(const std::vector<BatterySupply> &batteries, std::vector<Pack> &packs,
                           Time moment)
{
    const bool alone = std::none_of(packs.begin(), packs.end(),
                                    [](const Pack &pack) { return pack.percent.value_or(0) > 0; });
    std::vector<Entry> entries;
    entries.reserve(packs.size());
    for (std::size_t index = 0; index < packs.size(); ++index) {
        Entry &entry = entries.emplace_back(take(batteries[index].name));
        settle(entry, packs[index], moment, alone);
    }
    m_entries = std::move(entries);
}

ChargeHistory::Entry ChargeHistory::take(const std::string &name)
{
    const auto found = std::lower_bound(
        m_entries.begin(), m_entries.end(), name,
        [](const Entry &entry, const std::string &wanted) { return entry.name < wanted; });
    // Copied, not moved: later searches need the names to stay in order.
    return found != m_entries.end() && found->name == name ? *found : Entry { name, {}, {} };
}

void ChargeHistory::settle(Entry &entry, Pack &pack, Time moment, bool alone)
{
    if (pack.percent.value_or(0) > 0) {
        entry.zeroSince.reset();
        entry.lastPercent = pack.percent;
        return;
    }
    if (!entry.zeroSince)
        entry.zeroSince = moment;
    const bool overdue = moment - *entry.zeroSince >= acceptedAfter;
    if (!pack.percent) {
        if (overdue)
            entry.lastPercent.reset();
        pack.percent = entry.lastPercent;
        return;
    }
    const bool known = entry.lastPercent.has_value();
    const bool expected = known ? *entry.lastPercent <= nearlyEmptyPercent : pack.drained || !alone;
    if (expected || overdue) {
        entry.lastPercent = 0;
        return;
    }
    pack.percent = entry.lastPercent;
    pack.now.reset();
}

} // namespace ferrin
