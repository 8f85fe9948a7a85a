// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/forecast/chargeforecast.h"

#include <algorithm>

namespace ferrin {

namespace {

// From here on a gauge that counts finer says 100.
constexpr double roundedFull = 99.5;
constexpr double leastPower = 0.1;

} // namespace

ChargeForecast::ChargeForecast(const BatteryMemory &memory)
    : m_fit(memory.charge)
    , m_stop(memory.stop)
{
}

void ChargeForecast::watch(const PackMoment &pack, Hours awake)
{
    const double percent = pack.share() * 100;
    if (const auto change = m_steps.add(pack.share(), awake))
        m_fit.add(percent - change->amount * 100, percent, change->span);
    if (pack.rate.value_or(0) >= leastPower)
        m_fit.report(percent, *pack.rate / pack.full * 100);
}

void ChargeForecast::interrupt()
{
    m_steps = GaugeSteps(GaugeSteps::Towards::Full);
}

double ChargeForecast::end(const PackMoment &pack) const
{
    const double full = m_steps.countsPercents() ? 100 : roundedFull;
    const double limit = pack.limit ? *pack.limit : m_stop.value_or(100);
    // A limit that is behind the charge does not hold.
    return pack.share() * 100 < limit ? std::min(limit, full) : full;
}

std::optional<Hours> ChargeForecast::timeLeft(const PackMoment &pack, Hours awake,
                                              std::optional<double> elsewhere) const
{
    std::optional<ChargeFit::Charge> charge = m_fit.result();
    if (!charge && elsewhere)
        charge = ChargeFit::Charge { {}, *elsewhere / pack.full * 100 };
    if (!charge)
        return std::nullopt;
    double percent = pack.share() * 100;
    const double to = end(pack);
    if (pack.flow == PackMoment::Flow::Charging) {
        const double present = charge->rate * charge->curve.share(percent) / 100;
        percent = std::max(percent, m_steps.charge(awake, present) * 100);
    }
    constexpr double almost = 0.02;
    return charge->curve.between(std::min(percent, to - almost), to, charge->rate);
}

std::optional<double> ChargeForecast::power(const PackMoment &pack) const
{
    const auto &charge = m_fit.result();
    return charge ? std::optional(charge->rate * pack.full / 100) : std::nullopt;
}

std::optional<ChargeFit::Charge> ChargeForecast::shown() const
{
    return m_fit.isTelling() ? m_fit.result() : std::nullopt;
}

} // namespace ferrin
