// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/settlingperiod.h"

#include <utility>

namespace ferrin {

SettlingPeriod::SettlingPeriod(SteadyNow now)
    : m_now(std::move(now))
{
}

void SettlingPeriod::begin(std::optional<bool> externalPower)
{
    if (!isRunning() || externalPower)
        m_externalPower = externalPower;
    m_begin = m_now();
}

bool SettlingPeriod::isRunning() const
{
    return m_begin && m_now() - *m_begin < length;
}

std::optional<bool> SettlingPeriod::externalPower() const
{
    return isRunning() ? m_externalPower : std::nullopt;
}

} // namespace ferrin
