// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/externalpower.h"

namespace ferrin {

namespace {

/// What the batteries' status says about external power, all batteries taken together.
struct StatusVotes
{
    bool charging = false;
    bool discharging = false;
    bool resting = false;
};

StatusVotes votesOf(const std::vector<BatterySupply> &batteries)
{
    StatusVotes votes;
    for (const BatterySupply &battery : batteries) {
        votes.charging |= battery.status == ChargeStatus::Charging;
        votes.discharging |= battery.status == ChargeStatus::Discharging;
        votes.resting
            |= battery.status == ChargeStatus::Full || battery.status == ChargeStatus::NotCharging;
    }
    return votes;
}

std::optional<bool> byStatus(const StatusVotes &votes)
{
    if (votes.discharging)
        return false;
    return votes.charging || votes.resting ? std::optional(true) : std::nullopt;
}

struct OnlineVotes
{
    bool mainsOnline = false;
    bool mainsOffline = false;
    bool otherOnline = false;
    bool otherOffline = false;

    [[nodiscard]] bool anyKnown() const
    {
        return mainsOnline || mainsOffline || otherOnline || otherOffline;
    }
};

OnlineVotes onlineVotesOf(const std::vector<AdapterSupply> &adapters)
{
    OnlineVotes votes;
    for (const AdapterSupply &adapter : adapters) {
        if (!adapter.online)
            continue;
        const bool online = *adapter.online != 0;
        if (adapter.type == SupplyType::Mains)
            (online ? votes.mainsOnline : votes.mainsOffline) = true;
        else
            (online ? votes.otherOnline : votes.otherOffline) = true;
    }
    return votes;
}

} // namespace

std::optional<bool> externalConnected(const PowerSupplies &supplies)
{
    const StatusVotes votes = votesOf(supplies.batteries);
    const OnlineVotes online = onlineVotesOf(supplies.adapters);
    if (!online.anyKnown())
        return byStatus(votes);
    if (votes.charging && !votes.discharging)
        return true;
    const bool mainsDisagree = online.mainsOnline && online.mainsOffline && !online.otherOnline;
    const bool onlyOtherOnline = online.otherOnline && online.mainsOffline && !online.mainsOnline;
    if (mainsDisagree || onlyOtherOnline)
        return !votes.discharging || votes.charging;
    return online.mainsOnline || online.otherOnline;
}

} // namespace ferrin
