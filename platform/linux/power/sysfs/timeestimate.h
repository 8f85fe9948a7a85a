// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/pack.h"
#include "platform/linux/power/sysfs/ratesmoother.h"

#include <chrono>
#include <vector>

namespace ferrin {

enum class Direction {
    ToEmpty,
    ToFull,
};

/// The times to empty and to full that the machine can stand behind. What a pack loses or gains is
/// taken from its own time where its gauge gives one, else from its rate; the packs' stocks and
/// rates are summed. While discharging the sum is smoothed, while charging it is taken as it is.
///
/// There is no time when a pack's stock is unknown, when the pack at work tells no rate, when the
/// rates sum to less than 0.1 W or more than 300 W, when a pack would be empty within half an hour
/// of having been full (gauges that fail say so, batteries do not do so), or when the result is
/// beyond 48 h.
class TimeEstimate
{
public:
    using Time = RateSmoother::Time;

    /// The time of one direction at a monotonic moment; absent also without a direction, which
    /// makes the smoothing start anew, as a change of direction does. Call it once for each
    /// reading.
    [[nodiscard]] std::optional<std::chrono::minutes>
    update(const std::vector<Pack> &packs, std::optional<Direction> direction, Time moment);

private:
    RateSmoother m_smoother;
    std::optional<Direction> m_direction;
    bool m_relative = false;
};

} // namespace ferrin
