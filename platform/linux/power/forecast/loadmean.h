// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/hours.h"

#include <optional>

namespace ferrin {

/// The load that the remaining time should be divided by: calm while the load varies as loads do,
/// quick when it has really changed. It is a mean over the last three quarters of an hour, which
/// starts again from the moment at which the last minutes began to differ from it by half, once
/// they have done so for a while.
///
/// The result depends on what was measured when, not on how often. Loads are in watts.
class LoadMean
{
public:
    /// Starts from a load that is expected but was not measured: it counts as ten minutes do.
    void expect(double load);

    /// The load was this for this long.
    void add(double load, Hours span);

    /// What was measured counts no more than an expectation from here on.
    void doubt();

    /// Absent before anything was measured or expected.
    [[nodiscard]] std::optional<double> value() const;

    /// The mean if nothing but `energy` more (Wh) had been drawn in the last `span`.
    [[nodiscard]] double valueWith(double energy, Hours span) const;

    /// How much the mean rests on: up to three quarters of an hour.
    [[nodiscard]] Hours weight() const { return Hours(m_long.hours); }

    /// How often it started again from the last minutes.
    [[nodiscard]] int restarts() const { return m_restarts; }

private:
    /// An exponentially fading mean: energy over time, both fading alike.
    struct Fading
    {
        double energy = 0;
        double hours = 0;

        void add(double load, Hours span, Hours constant);
        [[nodiscard]] double mean() const { return energy / hours; }
    };

    Fading m_long;
    Fading m_short;
    /// What was measured since the last minutes began to differ.
    Fading m_differing;
    int m_restarts = 0;
};

} // namespace ferrin
