// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/timeestimate.h"

namespace ferrin {

using namespace std::chrono_literals;

namespace {
// µW
constexpr double leastRate = 100'000;
constexpr double greatestRate = 300'000'000;
constexpr double greatestShareAnHour = 2.0;
constexpr std::chrono::duration<double> longest = 48h;
// A gauge that knows neither energy nor charge may still know percent and seconds.
constexpr double relativeFull = 1'000'000;

// µWh and µW, or parts of relativeFull.
struct Flow
{
    double stock = 0;
    double rate = 0;
    double full = 0;
    bool relative = false;
};

std::optional<double> stockOf(const Pack &pack, Direction direction, Flow &flow)
{
    double now = 0;
    if (pack.full && pack.now) {
        flow.full = static_cast<double>(*pack.full);
        now = static_cast<double>(*pack.now);
    } else if (!pack.full && pack.percent) {
        flow.relative = true;
        flow.full = relativeFull;
        now = relativeFull * *pack.percent / 100;
    } else {
        return std::nullopt;
    }
    return direction == Direction::ToEmpty ? now : flow.full - now;
}

std::optional<double> rateOf(const Pack &pack, Direction direction, const Flow &flow)
{
    const bool toEmpty = direction == Direction::ToEmpty;
    const ChargeStatus busy = toEmpty ? ChargeStatus::Discharging : ChargeStatus::Charging;
    const Reading seconds = toEmpty ? pack.timeToEmpty : pack.timeToFull;
    // What another pack gains or loses is no part of this direction.
    if (toEmpty ? pack.status == ChargeStatus::Charging : pack.status != busy)
        return 0.0;
    if (seconds && pack.status == busy)
        return flow.stock * 3600 / static_cast<double>(*seconds);
    if (pack.rate && !flow.relative) {
        const auto rate = static_cast<double>(*pack.rate);
        return rate < leastRate ? 0 : rate;
    }
    // A pack that waits its turn need not say that it does nothing.
    return pack.status == busy ? std::nullopt : std::optional(0.0);
}

std::optional<Flow> flowOf(const Pack &pack, Direction direction)
{
    Flow flow;
    const std::optional<double> stock = stockOf(pack, direction, flow);
    if (!stock)
        return std::nullopt;
    flow.stock = *stock;
    const std::optional<double> rate = rateOf(pack, direction, flow);
    if (!rate || (direction == Direction::ToEmpty && *rate > greatestShareAnHour * flow.full))
        return std::nullopt;
    flow.rate = *rate;
    return flow;
}

std::optional<Flow> sumOf(const std::vector<Pack> &packs, Direction direction)
{
    Flow sum;
    for (const Pack &pack : packs) {
        const std::optional<Flow> flow = flowOf(pack, direction);
        if (!flow || (flow->relative && packs.size() > 1))
            return std::nullopt;
        sum.stock += flow->stock;
        sum.rate += flow->rate;
        sum.relative = flow->relative;
    }
    const bool possible
        = sum.relative ? sum.rate > 0 : sum.rate >= leastRate && sum.rate <= greatestRate;
    return possible ? std::optional(sum) : std::nullopt;
}
} // namespace

std::optional<std::chrono::minutes> TimeEstimate::update(const std::vector<Pack> &packs,
                                                         std::optional<Direction> direction,
                                                         Time moment)
{
    if (direction != m_direction)
        m_smoother.restart();
    m_direction = direction;
    if (!direction)
        return std::nullopt;
    const std::optional<Flow> flow = sumOf(packs, *direction);
    if (!flow)
        return std::nullopt;
    if (flow->relative != m_relative)
        m_smoother.restart();
    m_relative = flow->relative;
    const double rate
        = *direction == Direction::ToEmpty ? m_smoother.add(flow->rate, moment) : flow->rate;
    const std::chrono::duration<double, std::ratio<3600>> time(flow->stock / rate);
    if (time > longest)
        return std::nullopt;
    return std::chrono::duration_cast<std::chrono::minutes>(time);
}

} // namespace ferrin
