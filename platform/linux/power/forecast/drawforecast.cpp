// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/drawforecast.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace std::chrono_literals;

namespace {

// W. Less is a gauge that tells no rate, more one that fails.
constexpr double leastLoad = 0.1;
constexpr double greatestLoad = 300;
// Parts an hour: batteries are not drained in less than half an hour, gauges that fail say so.
constexpr double greatestShareAnHour = 2;
// A charge that moves by so much from one look to the next was corrected.
constexpr double correction = 0.016;
// No load is the same to the last digit for so long: the gauge does not measure it any more.
constexpr Hours frozenAfter = 10min;
// How long the charge must have been watched before it outweighs what the machine tells.
constexpr Hours trust = 1h;
// What the very first word on the load counts for, before any time has passed.
constexpr Hours firstLook = 3min;

std::optional<double> reportedLoad(const std::vector<PackMoment> &packs)
{
    double load = 0;
    double full = 0;
    for (const PackMoment &pack : packs) {
        full += pack.full;
        if (pack.flow == PackMoment::Flow::Discharging && !pack.rate)
            return std::nullopt;
        // What another pack gains is no load.
        if (pack.flow != PackMoment::Flow::Charging && pack.rate.value_or(0) >= leastLoad)
            load += *pack.rate;
    }
    const bool possible
        = load >= leastLoad && load <= greatestLoad && load <= greatestShareAnHour * full;
    return possible ? std::optional(load) : std::nullopt;
}

} // namespace

DrawForecast::DrawForecast(std::optional<double> usual)
    : m_usual(usual)
{
    if (!usual)
        return;
    m_measured.expect(*usual);
    m_reported.expect(*usual);
}

std::optional<Hours> DrawForecast::update(const std::vector<PackMoment> &packs, Hours awake)
{
    double now = 0;
    double full = 0;
    for (const PackMoment &pack : packs) {
        now += pack.now;
        full += pack.full;
    }
    m_drawn.reset();
    if (full <= 0)
        return std::nullopt;
    if (std::abs(full - m_full) > correction * full || !m_share
        || std::abs(now / full - *m_share) > correction) {
        m_steps = GaugeSteps(GaugeSteps::Towards::Empty);
        m_calm.restart();
    }
    m_full = full;
    m_share = now / full;
    measure(*m_share, awake);
    takeReported(reportedLoad(packs), awake);
    const std::optional<double> present = load(awake);
    if (!present)
        return std::nullopt;
    const double draw = expected(*present);
    const int restarts = m_measured.restarts() + m_reported.restarts();
    if (restarts != m_restarts)
        m_calm.restart();
    m_restarts = restarts;
    return m_calm.show(Hours(m_steps.charge(awake, draw / full) * full / draw), awake);
}

void DrawForecast::wake()
{
    m_steps = GaugeSteps(GaugeSteps::Towards::Empty);
    m_measured.doubt();
    m_reported.doubt();
    m_lastReported.reset();
    m_calm.restart();
}

void DrawForecast::measure(double share, Hours awake)
{
    const std::optional<GaugeSteps::Change> change = m_steps.add(share, awake);
    if (!change)
        return;
    const double energy = change->amount * m_full;
    m_measured.add(energy / change->span.count(), change->span);
    m_drawn = Drawn { energy, change->span };
}

void DrawForecast::takeReported(std::optional<double> load, Hours awake)
{
    if (load != m_lastLoad)
        m_sameLoadSince = awake;
    m_lastLoad = load;
    const Hours span = m_lastReported && m_reported.value() ? awake - *m_lastReported : firstLook;
    m_lastReported = awake;
    if (load && awake - m_sameLoadSince < frozenAfter && span > Hours())
        m_reported.add(*load, span);
}

double DrawForecast::expected(double load) const
{
    // Loads return to what is usual, yet a real change must show: the forecast goes a part of the
    // way back, by a factor of at most 1.2.
    constexpr double returning = 0.4;
    constexpr double furthest = 0.5;
    const double way = m_usual ? std::log(*m_usual / load) : 0;
    return load * std::exp(std::clamp(way, -furthest, furthest) * returning);
}

std::optional<double> DrawForecast::load(Hours awake) const
{
    std::optional<double> measured = m_measured.value();
    if (measured) {
        if (const auto overdue = m_steps.overdue(awake, *measured / m_full))
            measured = m_measured.valueWith(overdue->amount * m_full, overdue->span);
    }
    const std::optional<double> reported = m_lastLoad ? m_reported.value() : std::nullopt;
    if (!measured || !reported)
        return measured ? measured : reported;
    if (awake - m_sameLoadSince >= frozenAfter)
        return measured;
    const double share = m_measured.weight() / (m_measured.weight() + trust);
    return std::exp(std::log(*reported) * (1 - share) + std::log(*measured) * share);
}

} // namespace ferrin
