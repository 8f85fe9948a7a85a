// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/hours.h"

#include <optional>

namespace ferrin {

/// What a gauge's steps say about the charge between them. Some gauges count milliwatt-hours, many
/// whole percents; either way the charge is known exactly only at the moment of a step, and the
/// time from one step to the next is the one rate that every machine has.
///
/// It looks one way: towards empty or towards full. A step against it is noise, and waited out; a
/// leap that no battery could make is a correction of the gauge, and measures nothing. Charges are
/// parts of the whole, 0...1; moments are those of a clock that rests while the machine sleeps.
class GaugeSteps
{
public:
    enum class Towards {
        Empty = -1,
        Full = 1,
    };

    /// So much was drawn or gained, in so much time.
    struct Change
    {
        double amount = 0;
        Hours span {};
    };

    explicit GaugeSteps(Towards towards)
        : m_sign(static_cast<int>(towards))
    {
    }

    /// Takes what the gauge says now; answers the change since the last step if this is one.
    std::optional<Change> add(double charge, Hours moment);

    /// The charge now, if it has gone on at `rate` (parts an hour) since the last step.
    [[nodiscard]] double charge(Hours moment, double rate) const;

    /// The step that is overdue at `rate`, and since when; absent while it is not.
    [[nodiscard]] std::optional<Change> overdue(Hours moment, double rate) const;

    /// Everything that the gauge said so far was a whole percent.
    [[nodiscard]] bool countsPercents() const { return m_countsPercents; }

private:
    void anchor(double charge, Hours moment, bool exact);

    int m_sign;
    std::optional<double> m_charge;
    Hours m_moment {};
    double m_step = 0;
    /// The moment is that of a step, not merely of the first look.
    bool m_exact = false;
    bool m_countsPercents = true;
};

} // namespace ferrin
