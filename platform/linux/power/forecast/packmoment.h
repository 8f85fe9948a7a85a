// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/hours.h"

#include <optional>
#include <string>
#include <vector>

namespace ferrin {

/// One battery at one moment, as the forecast sees it.
struct PackMoment
{
    enum class Flow {
        Resting,
        Discharging,
        Charging,
    };

    /// Under which it is remembered.
    std::string key;
    Flow flow = Flow::Resting;
    /// What is left, and what it holds: Wh. A gauge that knows only percents counts parts of a
    /// battery of a size that is taken for granted.
    double now = 0;
    double full = 0;
    /// W, magnitude; absent when the machine reports none.
    std::optional<double> rate;
    /// Percent at which charging stops, if the machine says so.
    std::optional<int> limit;

    [[nodiscard]] double share() const { return now / full; }
};

/// Two clocks: one that rests while the machine sleeps, and one that goes on.
struct Clocks
{
    Hours awake {};
    Hours elapsed {};
};

} // namespace ferrin
