// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/steadynow.h"

#include <chrono>
#include <optional>

namespace ferrin {

/// The ten seconds after plugging in, unplugging or waking in which no time is shown: the rates
/// that it would be computed from are still those of the old state, or zero. Owned by
/// UPowerService. It runs no timer; it only compares the clock when it is asked.
class SettlingPeriod
{
public:
    static constexpr std::chrono::seconds length { 10 };

    explicit SettlingPeriod(SteadyNow now);

    /// Begins, or begins again. `externalPower` is absent when the event says nothing about it, as
    /// waking does; the value of the running period is then kept.
    void begin(std::optional<bool> externalPower);

    [[nodiscard]] bool isRunning() const;

    /// The last value that was given to begin(); absent when there was none, or the period is over.
    [[nodiscard]] std::optional<bool> externalPower() const;

private:
    SteadyNow m_now;
    std::optional<std::chrono::steady_clock::time_point> m_begin;
    std::optional<bool> m_externalPower;
};

} // namespace ferrin
