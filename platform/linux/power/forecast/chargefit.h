// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/chargecurve.h"

#include <array>
#include <optional>
#include <vector>

namespace ferrin {

/// The curve of one charge while it runs, between what is usual and what has been measured of it:
/// the knee, tail and rate that explain both best. The first charge of an unknown battery is taken
/// to go as those of lithium batteries usually do until its own fading shows, a later one as the
/// earlier ones did.
///
/// What belongs to a battery is as much the knee as how fast the rate fades above it: a weak
/// adapter reaches the knee later than a strong one. Charges are percent, rates percent an hour.
class ChargeFit
{
public:
    struct Charge
    {
        ChargeCurve curve;
        /// Below the knee.
        double rate = 0;
    };

    /// `known` is what earlier charges of the same battery have shown.
    explicit ChargeFit(std::optional<Charge> known);

    /// The charge rose from one value to another in this time.
    void add(double from, double to, Hours span);

    /// The rate that the machine reports at a charge. It counts until the charge has risen enough
    /// to tell its own.
    void report(double charge, double rate);

    /// Absent before anything is known of the rate.
    [[nodiscard]] const std::optional<Charge> &result() const { return m_result; }

    /// Enough was measured below and above the knee to be remembered.
    [[nodiscard]] bool isTelling() const;

private:
    /// One percent of the charge.
    struct Bin
    {
        double points = 0;
        double hours = 0;
    };
    /// The logarithm of a rate that was seen at a charge.
    struct Observation
    {
        double charge = 0;
        double logRate = 0;
        double weight = 0;
        double recency = 0;
    };
    struct Candidate
    {
        double cost = 0;
        double rate = 0;
    };

    void fit();
    [[nodiscard]] std::vector<Observation> observations() const;
    [[nodiscard]] Candidate candidate(const std::vector<Observation> &observations,
                                      const ChargeCurve &curve) const;
    [[nodiscard]] double surprise(const ChargeCurve &curve, double rate) const;
    [[nodiscard]] double expectedKnee(double rate, double tail) const;

    std::optional<Charge> m_known;
    std::optional<Charge> m_reported;
    std::optional<Charge> m_result;
    std::array<Bin, 100> m_bins {};
    double m_measured = 0;
    int m_reached = -1;
};

} // namespace ferrin
