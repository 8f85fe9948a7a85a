// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/ratesmoother.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace std::chrono_literals;

namespace {
constexpr std::chrono::duration<double> stage = 2min;
} // namespace

double RateSmoother::add(double rate, Time moment)
{
    if (!m_state)
        m_state = State { rate, rate, moment };
    const std::chrono::duration<double> elapsed = std::max(moment - m_state->moment, Time::zero());
    // The exact answer of both stages to a rate that held for the time since the last one, which is
    // why two short steps end where one long step does.
    const double share = elapsed / stage;
    const double kept = std::exp(-share);
    const double firstLag = m_state->first - rate;
    const double secondLag = m_state->second - rate;
    m_state->first = rate + firstLag * kept;
    m_state->second = rate + (secondLag + firstLag * share) * kept;
    m_state->moment = moment;
    return m_state->second;
}

} // namespace ferrin
