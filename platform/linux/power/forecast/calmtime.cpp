// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/calmtime.h"

#include <algorithm>

namespace ferrin {

namespace {

constexpr double band = 0.05;

} // namespace

Hours CalmTime::show(Hours calculated, Hours moment)
{
    const Hours running = m_end ? *m_end - moment : calculated;
    const Hours shown = std::clamp(running, calculated * (1 - band), calculated * (1 + band));
    m_end = moment + shown;
    return shown;
}

} // namespace ferrin
