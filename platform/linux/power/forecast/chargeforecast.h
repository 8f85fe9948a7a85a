// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/batterymemory.h"
#include "platform/linux/power/forecast/gaugesteps.h"
#include "platform/linux/power/forecast/packmoment.h"

namespace ferrin {

/// The time until one pack is full, or at its limit.
class ChargeForecast
{
public:
    explicit ChargeForecast(const BatteryMemory &memory);

    /// Takes one moment of the charge; to be called for each of them.
    void watch(const PackMoment &pack, Hours awake);

    /// What comes next is no continuation: the machine slept, or the pack had to wait.
    void interrupt();

    /// The time that is left of the charge, absent while nothing is known of the rate. A pack that
    /// waits for another is expected to be charged as fast as `elsewhere`, in W, if nothing is
    /// known of its own.
    [[nodiscard]] std::optional<Hours> timeLeft(const PackMoment &pack, Hours awake,
                                                std::optional<double> elsewhere) const;

    /// The power below the knee, in W; absent while nothing is known of it.
    [[nodiscard]] std::optional<double> power(const PackMoment &pack) const;

    /// What the charge has shown of the battery; absent unless it is worth remembering.
    [[nodiscard]] std::optional<ChargeFit::Charge> shown() const;

private:
    [[nodiscard]] double end(const PackMoment &pack) const;

    GaugeSteps m_steps { GaugeSteps::Towards::Full };
    ChargeFit m_fit;
    std::optional<int> m_stop;
};

} // namespace ferrin
