// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/heldcharge.h"

#include <algorithm>

namespace ferrin {

namespace {

constexpr int fullPercent = 95;
// Charging begins again only some percent below the limit.
constexpr int below = 5;
constexpr int above = 2;
// µW
constexpr std::int64_t leastRate = 100'000;

bool isAt(int limit, int charge)
{
    return charge >= limit - below && charge <= limit + above;
}

bool mayBeHeld(const Pack &pack, bool atLimit)
{
    if (pack.status == ChargeStatus::Charging)
        return false;
    if (pack.status == ChargeStatus::Discharging)
        return atLimit && pack.rate && *pack.rate < leastRate;
    return pack.status != ChargeStatus::Full || atLimit;
}

} // namespace

HeldCharge heldCharge(const std::vector<Pack> &packs, std::optional<bool> external,
                      std::optional<int> charge, std::optional<int> limit)
{
    const bool atLimit = charge && limit && isAt(*limit, *charge);
    const bool reported = std::any_of(packs.begin(), packs.end(), [](const Pack &pack) {
        return pack.status == ChargeStatus::NotCharging;
    });
    const bool idle = std::all_of(packs.begin(), packs.end(),
                                  [atLimit](const Pack &pack) { return mayBeHeld(pack, atLimit); });
    if (external != true || !charge || !idle)
        return {};
    if (atLimit)
        return { true, limit };
    return { reported && *charge < fullPercent, std::nullopt };
}

} // namespace ferrin
