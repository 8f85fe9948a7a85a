// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/steadynow.h"

#include <chrono>
#include <optional>

namespace ferrin {

/// The ten seconds after plugging in, unplugging or waking in which no time is worth telling: the
/// rates that it would be made of are still those of the old state, or of nothing. Owned by
/// UPowerService, begun from outside, and merely looked at: it runs no timer.
class SettlingPeriod
{
public:
    static constexpr std::chrono::seconds length { 10 };

    explicit SettlingPeriod(SteadyNow now);

    /// Begins, or begins anew. `onExternalPower` is what the event says of the adapter; absent when
    /// it says nothing of it, as waking does, and what was said within this period then stands.
    void begin(std::optional<bool> onExternalPower);

    [[nodiscard]] bool isRunning() const;

    /// What the period's events said of the adapter; absent when nothing, or when it is over.
    [[nodiscard]] std::optional<bool> onExternalPower() const;

private:
    SteadyNow m_now;
    std::optional<std::chrono::steady_clock::time_point> m_begin;
    std::optional<bool> m_onExternalPower;
};

} // namespace ferrin
