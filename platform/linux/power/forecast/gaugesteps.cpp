// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/gaugesteps.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

// Parts an hour: no notebook is emptied or filled in less than half an hour.
constexpr double greatestRate = 2;
// More than the rounding of a gauge in whole percents can hide.
constexpr double leap = 0.015;
// The charge is not carried further than this beyond what the gauge said last.
constexpr double coarsestStep = 0.01;

bool isWholePercent(double charge)
{
    constexpr double tolerance = 0.005;
    return std::abs(charge * 100 - std::round(charge * 100)) < tolerance;
}

} // namespace

void GaugeSteps::anchor(double charge, Hours moment, bool exact)
{
    m_charge = charge;
    m_moment = moment;
    m_exact = exact;
}

std::optional<GaugeSteps::Change> GaugeSteps::add(double charge, Hours moment)
{
    m_countsPercents = m_countsPercents && isWholePercent(charge);
    if (!m_charge) {
        anchor(charge, moment, false);
        return std::nullopt;
    }
    const Change change { (charge - *m_charge) * m_sign, moment - m_moment };
    const bool possible = change.amount <= greatestRate * change.span.count();
    if (std::abs(change.amount) >= leap && (change.amount < 0 || !possible))
        anchor(charge, moment, false);
    // What seems too fast for a battery is waited out: the next steps make it good.
    if (change.amount <= 0 || !possible)
        return std::nullopt;
    const bool wasExact = m_exact;
    m_step = std::min(change.amount, coarsestStep);
    anchor(charge, moment, true);
    return wasExact ? std::optional(change) : std::nullopt;
}

double GaugeSteps::charge(Hours moment, double rate) const
{
    const double gone = std::min(rate * (moment - m_moment).count(), m_step);
    return std::clamp(m_charge.value_or(0) + gone * m_sign, 0.0, 1.0);
}

std::optional<GaugeSteps::Change> GaugeSteps::overdue(Hours moment, double rate) const
{
    const Change change { m_step, moment - m_moment };
    const bool isOverdue = m_exact && change.amount < rate * change.span.count();
    return isOverdue ? std::optional(change) : std::nullopt;
}

} // namespace ferrin
