// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <chrono>
#include <optional>

namespace ferrin {

/// The load of the machine as the shown time should see it: two equal low-pass stages in a row, two
/// minutes each, so that the whole answers with a time constant of four minutes but hardly at all
/// in the first one. The result depends on what was measured when, not on how often.
class RateSmoother
{
public:
    using Time = std::chrono::milliseconds;

    /// Takes a measurement in any unit at a monotonic moment; the first one is the result itself.
    double add(double rate, Time moment);

    /// Forgets everything: what comes next is another direction, or another unit.
    void restart() { m_state.reset(); }

private:
    struct State
    {
        double first = 0;
        double second = 0;
        Time moment {};
    };

    std::optional<State> m_state;
};

} // namespace ferrin
