// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/forecast.h"

#include <algorithm>

namespace ferrin {

using namespace std::chrono_literals;

namespace {

constexpr Hours longest = 48h;
// The two clocks drift apart by less than this unless the machine sleeps.
constexpr Hours leastSleep = 20s;
// A pack is topped up only after it has lost more than this.
constexpr double notToppedUp = 0.95;
// Rests between these are a limit; below, something else is wrong, and above it is full.
constexpr int lowestStop = 40;
constexpr int highestStop = 97;
constexpr Hours restOfAStop = 5min;

std::optional<std::chrono::minutes> shown(std::optional<Hours> time)
{
    if (!time || *time > longest)
        return std::nullopt;
    return std::max(std::chrono::duration_cast<std::chrono::minutes>(*time),
                    std::chrono::minutes(1));
}

int wholePercent(const PackMoment &pack)
{
    return static_cast<int>(pack.share() * 100 + 0.5);
}

bool isCharging(const PackMoment &pack)
{
    return pack.flow == PackMoment::Flow::Charging;
}

} // namespace

Forecast::Forecast(QString memoryPath)
    : m_store(std::move(memoryPath))
{
}

Forecast::~Forecast()
{
    m_store.saveNow();
}

std::optional<std::chrono::minutes> Forecast::update(const std::vector<PackMoment> &packs,
                                                     std::optional<Direction> direction,
                                                     bool plugged, const Clocks &clocks)
{
    if (direction != m_direction)
        turn(packs, direction);
    const Hours asleep = m_clocks
        ? (clocks.elapsed - m_clocks->elapsed) - (clocks.awake - m_clocks->awake)
        : Hours();
    if (asleep > leastSleep)
        wake();
    m_clocks = clocks;
    m_packs = packs;
    for (const PackMoment &pack : packs)
        watchStop(pack, plugged, clocks.awake);
    std::optional<Hours> time;
    if (direction == Direction::ToEmpty)
        time = timeToEmpty(packs, clocks.awake);
    else if (direction == Direction::ToFull)
        time = timeToFull(packs, clocks.awake);
    m_store.save(clocks.elapsed);
    return shown(time);
}

std::optional<std::chrono::minutes> Forecast::available() const
{
    const std::optional<double> draw = usualDraw(m_packs);
    double left = 0;
    for (const PackMoment &pack : m_packs)
        left += pack.now;
    return draw ? shown(Hours(left / *draw)) : std::nullopt;
}

std::optional<int> Forecast::limit(const std::vector<PackMoment> &packs) const
{
    std::optional<int> lowest;
    for (const PackMoment &pack : packs) {
        const std::optional<int> own = pack.limit ? pack.limit : m_store.find(pack.key).stop;
        if (own && (!lowest || *own < *lowest))
            lowest = own;
    }
    return lowest;
}

void Forecast::turn(const std::vector<PackMoment> &packs, std::optional<Direction> direction)
{
    rememberCharges();
    m_direction = direction;
    m_charges.clear();
    m_calm.restart();
    if (direction == Direction::ToEmpty)
        m_draw = DrawForecast(usualDraw(packs));
}

void Forecast::wake()
{
    m_draw.wake();
    m_calm.restart();
    m_rests.clear();
    for (auto &[key, charge] : m_charges)
        charge.interrupt();
}

std::optional<Hours> Forecast::timeToEmpty(const std::vector<PackMoment> &packs, Hours awake)
{
    const std::optional<Hours> time = m_draw.update(packs, awake);
    if (const auto &drawn = m_draw.drawn()) {
        for (const PackMoment &pack : packs)
            m_store.change(pack.key).learnDraw(drawn->energy, drawn->span);
    }
    return time;
}

void Forecast::watchCharges(const std::vector<PackMoment> &packs, Hours awake)
{
    for (const PackMoment &pack : packs) {
        ChargeForecast &charge
            = m_charges.try_emplace(pack.key, m_store.find(pack.key)).first->second;
        if (isCharging(pack))
            charge.watch(pack, awake);
        else
            charge.interrupt();
    }
}

std::optional<Hours> Forecast::timeToFull(const std::vector<PackMoment> &packs, Hours awake)
{
    watchCharges(packs, awake);
    Hours slowest {};
    std::optional<double> power;
    for (const PackMoment &pack : packs) {
        if (!isCharging(pack))
            continue;
        const ChargeForecast &charge = m_charges.at(pack.key);
        const std::optional<Hours> time = charge.timeLeft(pack, awake, {});
        if (!time)
            return std::nullopt;
        slowest = std::max(slowest, *time);
        power = charge.power(pack);
    }
    if (!power)
        return std::nullopt;
    Hours waiting {};
    for (const PackMoment &pack : packs) {
        const double limit = pack.limit.value_or(100) / 100.0;
        if (!isCharging(pack) && pack.share() < std::min(limit, notToppedUp))
            waiting += m_charges.at(pack.key).timeLeft(pack, awake, power).value_or(Hours());
    }
    return m_calm.show(slowest + waiting, awake);
}

void Forecast::rememberCharges()
{
    for (const auto &[key, charge] : m_charges) {
        if (const auto shown = charge.shown())
            m_store.change(key).learnCharge(*shown);
    }
}

void Forecast::watchStop(const PackMoment &pack, bool plugged, Hours awake)
{
    const int percent = wholePercent(pack);
    const std::optional<int> known = m_store.find(pack.key).stop;
    if (isCharging(pack)) {
        m_rests[pack.key] = { percent, awake };
        if (known && percent > *known + 1)
            m_store.change(pack.key).stop.reset();
        return;
    }
    const auto rest = m_rests.find(pack.key);
    if (rest == m_rests.end())
        return;
    const bool rests = plugged && pack.flow == PackMoment::Flow::Resting
        && std::abs(percent - rest->second.percent) <= 1;
    const bool alone = std::none_of(m_packs.begin(), m_packs.end(), isCharging);
    if (!rests || percent < lowestStop || percent > highestStop || !alone) {
        m_rests.erase(rest);
    } else if (awake - rest->second.since >= restOfAStop) {
        if (!pack.limit && known != percent)
            m_store.change(pack.key).stop = percent;
        m_rests.erase(rest);
    }
}

std::optional<double> Forecast::usualDraw(const std::vector<PackMoment> &packs) const
{
    for (const PackMoment &pack : packs) {
        if (const auto draw = m_store.find(pack.key).draw)
            return draw;
    }
    return std::nullopt;
}

} // namespace ferrin
