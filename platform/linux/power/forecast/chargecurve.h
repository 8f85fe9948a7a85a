// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/hours.h"

namespace ferrin {

/// How a lithium battery takes its charge: at a constant rate up to the knee, then at a constant
/// voltage with a rate that fades in proportion to what is missing. Charges are percent.
struct ChargeCurve
{
    /// Where the rate begins to fade, 45...97.
    double knee = 75;
    /// What seems to be missing still when it is full, 0.5...8: the smaller, the longer the end.
    double tail = 2;

    /// The rate at a charge as a part of the constant one, more than 0 and at most 1.
    [[nodiscard]] double share(double charge) const;

    /// The time from one charge to a greater one at `rate` percent an hour below the knee.
    [[nodiscard]] Hours between(double from, double to, double rate) const;

    bool operator==(const ChargeCurve &) const = default;
};

} // namespace ferrin
