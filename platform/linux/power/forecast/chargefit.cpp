// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/chargefit.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ferrin {

namespace {

/// What is expected of a battery, and how far it usually is from that.
struct Expectation
{
    double kneeDeviation;
    double tailDeviation; // of its logarithm
};
constexpr Expectation unknownBattery { 10, 0.3 };
constexpr Expectation knownBattery { 2, 0.2 };

constexpr ChargeCurve usualCurve;
// Percent an hour for each missing percent, above the knee.
constexpr double usualFading = 2;
constexpr double earliestUsualKnee = 50;
constexpr double latestUsualKnee = 92;

// Deviations of a rate's logarithm: of one measured over a percent, and of one remembered.
constexpr double measuredDeviation = 0.2;
constexpr double knownRateDeviation = 0.1;
// What is further off than this was disturbed, and pulls no more than this would.
constexpr double disturbed = 0.12;
// Percent after which a measurement counts for little in the present rate.
constexpr double recent = 20;

constexpr std::array tails { 0.5, 0.7, 1.0, 1.4, 2.0, 2.8, 4.0, 5.6, 8.0 };
constexpr int earliestKnee = 45;
constexpr int latestKnee = 97;
// Percent measured, that the machine's own word on the rate is not needed any more.
constexpr double enough = 2;
// Of a bin.
constexpr double leastPoints = 0.3;

double square(double value)
{
    return value * value;
}

// Huber's: square near 0, and linear beyond.
double loss(double difference)
{
    const double size = std::abs(difference);
    return size <= disturbed ? square(size) : disturbed * (2 * size - disturbed);
}

double pull(double difference)
{
    const double size = std::abs(difference);
    return size <= disturbed ? 1 : disturbed / size;
}

} // namespace

ChargeFit::ChargeFit(std::optional<Charge> known)
    : m_known(known)
    , m_result(known)
{
}

void ChargeFit::add(double from, double to, Hours span)
{
    for (int percent = static_cast<int>(from); percent < 100 && percent < to; ++percent) {
        const double points = std::min(to, percent + 1.0) - std::max(from, double(percent));
        Bin &bin = m_bins.at(static_cast<std::size_t>(percent));
        bin.points += points;
        bin.hours += span.count() * points / (to - from);
    }
    m_measured += to - from;
    if (static_cast<int>(to) == m_reached)
        return;
    m_reached = static_cast<int>(to);
    fit();
}

void ChargeFit::report(double charge, double rate)
{
    constexpr double noteworthy = 0.02;
    const bool reported = m_reported && std::abs(rate / m_reported->rate - 1) < noteworthy;
    if (m_measured >= enough || reported)
        return;
    m_reported = Charge { ChargeCurve { charge, 0 }, rate };
    fit();
}

bool ChargeFit::isTelling() const
{
    constexpr double leastBelow = 10;
    constexpr double leastAbove = 5;
    constexpr std::size_t nearlyFull = 97;
    double below = 0;
    for (std::size_t percent = 0; m_result && percent < m_bins.size(); ++percent)
        below += double(percent) < m_result->curve.knee ? m_bins.at(percent).points : 0;
    return m_bins.at(nearlyFull).points >= leastPoints && below >= leastBelow
        && m_measured - below >= leastAbove;
}

std::vector<ChargeFit::Observation> ChargeFit::observations() const
{
    std::vector<Observation> found;
    for (std::size_t percent = 0; percent < m_bins.size(); ++percent) {
        const Bin &bin = m_bins.at(percent);
        if (bin.points < leastPoints)
            continue;
        const double age = (m_reached - double(percent)) / recent;
        found.push_back({ double(percent) + 0.5, std::log(bin.points / bin.hours),
                          bin.points / square(measuredDeviation), bin.points * std::exp(-age) });
    }
    if (m_reported && m_measured < enough) {
        found.push_back({ m_reported->curve.knee, std::log(m_reported->rate),
                          1 / square(measuredDeviation), 1 });
    }
    if (m_known) {
        found.push_back({ 0, std::log(m_known->rate), 1 / square(knownRateDeviation),
                          m_measured < 1 ? 0.2 : 0.05 });
    }
    return found;
}

double ChargeFit::expectedKnee(double rate, double tail) const
{
    const ChargeCurve &curve = m_known ? m_known->curve : usualCurve;
    const double fading = m_known ? m_known->rate / (100 - curve.knee + curve.tail) : usualFading;
    const double knee = (curve.knee + 100 + tail - rate / fading) / 2;
    return m_known ? knee : std::clamp(knee, earliestUsualKnee, latestUsualKnee);
}

double ChargeFit::surprise(const ChargeCurve &curve, double rate) const
{
    const Expectation &expected = m_known ? knownBattery : unknownBattery;
    const double tail = m_known ? m_known->curve.tail : usualCurve.tail;
    return square((curve.knee - expectedKnee(rate, curve.tail)) / expected.kneeDeviation)
        + square(std::log(curve.tail / tail) / expected.tailDeviation);
}

ChargeFit::Candidate ChargeFit::candidate(const std::vector<Observation> &observations,
                                          const ChargeCurve &curve) const
{
    // The rate below the knee that each observation would make, if this were the curve.
    std::vector<double> rates;
    rates.reserve(observations.size());
    for (const Observation &one : observations)
        rates.push_back(one.logRate - std::log(curve.share(one.charge)));
    const auto mean = [&](double Observation::*weight, std::optional<double> about) {
        double sum = 0;
        double weights = 0;
        for (std::size_t i = 0; i < rates.size(); ++i) {
            const double share = observations[i].*weight * (about ? pull(rates[i] - *about) : 1);
            sum += share * rates[i];
            weights += share;
        }
        return sum / weights;
    };
    double rate = mean(&Observation::weight, std::nullopt);
    for (int refinement = 0; refinement < 2; ++refinement)
        rate = mean(&Observation::weight, rate);
    double cost = surprise(curve, std::exp(rate));
    for (std::size_t i = 0; i < rates.size(); ++i)
        cost += observations[i].weight * loss(rates[i] - rate);
    return { cost, std::exp(mean(&Observation::recency, rate)) };
}

void ChargeFit::fit()
{
    const std::vector<Observation> seen = observations();
    if (seen.empty())
        return;
    double least = std::numeric_limits<double>::infinity();
    for (const double tail : tails) {
        for (int knee = earliestKnee; knee <= latestKnee; ++knee) {
            const ChargeCurve curve { double(knee), tail };
            const Candidate found = candidate(seen, curve);
            if (found.cost >= least)
                continue;
            least = found.cost;
            m_result = Charge { curve, found.rate };
        }
    }
}

} // namespace ferrin
