// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/packmoments.h"

#include <algorithm>

namespace ferrin {

namespace {

constexpr double microwattHours = 1e6;
constexpr double assumedFull = 50;
// µW
constexpr std::int64_t leastRate = 100'000;
constexpr std::int64_t greatestRate = 300'000'000;

double usualFull(const std::vector<Pack> &packs)
{
    double sum = 0;
    int count = 0;
    for (const Pack &pack : packs) {
        sum += static_cast<double>(pack.full.value_or(0)) / microwattHours;
        count += pack.full ? 1 : 0;
    }
    return count > 0 ? sum / count : assumedFull;
}

PackMoment::Flow flowOf(const Pack &pack)
{
    if (pack.status == ChargeStatus::Charging)
        return PackMoment::Flow::Charging;
    return pack.status == ChargeStatus::Discharging ? PackMoment::Flow::Discharging
                                                    : PackMoment::Flow::Resting;
}

std::optional<double> rateOf(const Pack &pack, const PackMoment &moment)
{
    const bool reported
        = pack.rate && pack.full && *pack.rate >= leastRate && *pack.rate <= greatestRate;
    const std::optional<double> rate
        = reported ? std::optional(static_cast<double>(*pack.rate) / microwattHours) : std::nullopt;
    const auto over = [](double energy, Reading seconds) -> std::optional<double> {
        if (!seconds || energy <= 0)
            return std::nullopt;
        return energy * 3600 / static_cast<double>(*seconds);
    };
    // The gauge's own mean is the steadier one while it is drained; while it is charged its time
    // is of a rate that will not last.
    if (moment.flow == PackMoment::Flow::Discharging) {
        const std::optional<double> own = over(moment.now, pack.timeToEmpty);
        return own ? own : rate;
    }
    if (moment.flow == PackMoment::Flow::Charging)
        return rate ? rate : over(moment.full - moment.now, pack.timeToFull);
    return rate;
}

} // namespace

std::string memoryKey(const BatterySupply &battery, const BatteryRecord &record)
{
    const Reading design = designMilliampHours(battery, record);
    std::string model;
    std::copy_if(record.modelName.begin(), record.modelName.end(), std::back_inserter(model),
                 [](char letter) { return letter > ' ' && letter < '\x7f'; });
    return model + '/' + (design ? std::to_string(*design) + "mAh" : "") + '/' + battery.name;
}

std::optional<int> chargeLimit(const BatterySupply &battery)
{
    const Reading limit = battery.chargeEndThreshold;
    return limit && *limit >= 1 && *limit <= 99 ? std::optional(static_cast<int>(*limit))
                                                : std::nullopt;
}

std::vector<PackMoment> packMoments(const std::vector<BatterySupply> &batteries,
                                    const std::vector<Pack> &packs,
                                    const std::vector<std::string> &keys)
{
    const double usual = usualFull(packs);
    std::vector<PackMoment> moments;
    moments.reserve(packs.size());
    for (std::size_t index = 0; index < packs.size(); ++index) {
        const Pack &pack = packs[index];
        if (pack.phantom)
            continue;
        if (!pack.now && !pack.percent)
            return {};
        PackMoment &moment = moments.emplace_back();
        moment.key = keys[index];
        moment.flow = flowOf(pack);
        moment.full = pack.full ? static_cast<double>(*pack.full) / microwattHours : usual;
        moment.now = pack.now && pack.full ? static_cast<double>(*pack.now) / microwattHours
                                           : moment.full * pack.percent.value_or(0) / 100;
        moment.rate = rateOf(pack, moment);
        moment.limit = chargeLimit(batteries[index]);
    }
    return moments;
}

} // namespace ferrin
