// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/loadmean.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace std::chrono_literals;

namespace {

constexpr Hours longConstant = 45min;
constexpr Hours shortConstant = 6min;
constexpr Hours expectation = 10min;
// What the last minutes must differ by, and for how long, to be another load: exp(0.45) is 1.57.
constexpr double greatestDifference = 0.45;
constexpr Hours changedAfter = 3min;

} // namespace

void LoadMean::Fading::add(double load, Hours span, Hours constant)
{
    const double kept = std::exp(-(span / constant));
    energy = energy * kept + load * constant.count() * (1 - kept);
    hours = hours * kept + constant.count() * (1 - kept);
}

void LoadMean::expect(double load)
{
    *this = {};
    m_long = { load * expectation.count(), expectation.count() };
}

void LoadMean::doubt()
{
    const double share = m_long.hours > 0 ? std::min(1.0, expectation.count() / m_long.hours) : 1;
    m_long = { m_long.energy * share, m_long.hours * share };
    m_short = {};
    m_differing = {};
}

void LoadMean::add(double load, Hours span)
{
    m_long.add(load, span, longConstant);
    m_short.add(load, span, shortConstant);
    const bool differs = m_short.energy > 0
        && std::abs(std::log(m_short.mean() / m_long.mean())) > greatestDifference;
    if (!differs)
        m_differing = {};
    else
        m_differing.add(load, span, longConstant);
    if (m_differing.hours < changedAfter.count())
        return;
    m_long = m_differing;
    m_short = m_differing;
    m_differing = {};
    ++m_restarts;
}

std::optional<double> LoadMean::value() const
{
    return m_long.energy > 0 ? std::optional(m_long.mean()) : std::nullopt;
}

double LoadMean::valueWith(double energy, Hours span) const
{
    return (m_long.energy + energy) / (m_long.hours + span.count());
}

} // namespace ferrin
