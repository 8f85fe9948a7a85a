// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/chargefit.h"

#include <QJsonObject>

#include <optional>

namespace ferrin {

/// What has been learned of one battery. Every part is absent until it was seen.
struct BatteryMemory
{
    /// What the machine usually draws while it runs on batteries: W, over the last hours of it.
    std::optional<double> draw;
    /// The hours that `draw` is made of, at most four.
    double drawHours = 0;
    /// How the battery takes its charge.
    std::optional<ChargeFit::Charge> charge;
    /// The charges that `charge` is made of.
    int charges = 0;
    /// Where charging was seen to stop below full: percent.
    std::optional<int> stop;

    /// Takes in energy (Wh) that was drawn in a span.
    void learnDraw(double energy, Hours span);
    /// Takes in what a whole charge has shown; the newest counts for at least a quarter.
    void learnCharge(const ChargeFit::Charge &shown);
};

/// A number that is missing or cannot be right is absent in the memory, as if it were not learned.
[[nodiscard]] BatteryMemory memoryFromJson(const QJsonObject &object);
[[nodiscard]] QJsonObject toJson(const BatteryMemory &memory);

} // namespace ferrin
