// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/batteryfigures.h"

#include <algorithm>

namespace ferrin {

namespace {

constexpr int chargedPercent = 95;

qint64 usualFull(const std::vector<Pack> &packs)
{
    qint64 sum = 0;
    qint64 count = 0;
    for (const Pack &pack : packs) {
        sum += pack.full.value_or(0);
        count += pack.full ? 1 : 0;
    }
    return count > 0 ? sum / count : 100;
}

bool anyIs(const std::vector<Pack> &packs, ChargeStatus status)
{
    return std::any_of(packs.begin(), packs.end(),
                       [status](const Pack &pack) { return pack.status == status; });
}

bool isFull(const Pack &pack, std::optional<bool> external)
{
    const int percent = pack.percent.value_or(0);
    switch (pack.status.value_or(ChargeStatus::Unknown)) {
    case ChargeStatus::Full:
        return true;
    case ChargeStatus::NotCharging:
        return external == true && percent >= chargedPercent;
    case ChargeStatus::Unknown:
        return (external == true && percent >= chargedPercent)
            || (external != false && percent == 100);
    case ChargeStatus::Charging:
    case ChargeStatus::Discharging:
        return false;
    }
    return false;
}

} // namespace

std::vector<Pack> realPacks(std::vector<Pack> packs)
{
    const auto isPhantom = [](const Pack &pack) { return pack.phantom; };
    if (!std::all_of(packs.begin(), packs.end(), isPhantom))
        std::erase_if(packs, isPhantom);
    return packs;
}

std::optional<int> chargePercent(const std::vector<Pack> &packs)
{
    if (packs.size() == 1)
        return packs.front().percent;
    const qint64 usual = usualFull(packs);
    qint64 sumOfNow = 0;
    qint64 sumOfFull = 0;
    for (const Pack &pack : packs) {
        if (!pack.percent)
            return std::nullopt;
        const qint64 full = pack.full.value_or(usual);
        sumOfFull += full;
        sumOfNow += pack.now.value_or(full * *pack.percent / 100);
    }
    if (sumOfFull <= 0)
        return std::nullopt;
    return static_cast<int>(std::clamp<qint64>(sumOfNow * 100 / sumOfFull, 0, 100));
}

Reading remainingMilliampHours(const std::vector<Pack> &packs)
{
    qint64 sum = 0;
    for (const Pack &pack : packs) {
        if (!pack.now || !pack.full || !pack.fullMilliampHours)
            return std::nullopt;
        sum += (*pack.now * *pack.fullMilliampHours + *pack.full / 2) / *pack.full;
    }
    return packs.empty() ? std::nullopt : Reading(sum);
}

Reading fullMilliampHours(const std::vector<Pack> &packs)
{
    qint64 sum = 0;
    for (const Pack &pack : packs) {
        if (!pack.fullMilliampHours)
            return std::nullopt;
        sum += *pack.fullMilliampHours;
    }
    return packs.empty() ? std::nullopt : Reading(sum);
}

std::optional<bool> isCharging(const std::vector<Pack> &packs)
{
    if (anyIs(packs, ChargeStatus::Charging))
        return true;
    const bool reported = std::any_of(packs.begin(), packs.end(),
                                      [](const Pack &pack) { return pack.status || pack.percent; });
    return reported ? std::optional(false) : std::nullopt;
}

std::optional<bool> isFullyCharged(const std::vector<Pack> &packs, std::optional<bool> external)
{
    bool full = !packs.empty();
    for (const Pack &pack : packs) {
        if (!pack.status && !pack.percent)
            return std::nullopt;
        full = full && isFull(pack, external);
    }
    return packs.empty() ? std::nullopt : std::optional(full);
}

} // namespace ferrin
