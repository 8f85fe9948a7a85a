// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/calmtime.h"
#include "platform/linux/power/forecast/gaugesteps.h"
#include "platform/linux/power/forecast/loadmean.h"
#include "platform/linux/power/forecast/packmoment.h"

namespace ferrin {

/// The time until all packs together are empty, while they are drawn upon: what is left over the
/// mean load. The load is the one that the machine reports, as far as the charge bears it out, else
/// the charge's own fall.
class DrawForecast
{
public:
    /// Energy (Wh) that was drawn, to be remembered.
    struct Drawn
    {
        double energy = 0;
        Hours span {};
    };

    /// `usual` is the draw that is remembered, in W.
    explicit DrawForecast(std::optional<double> usual);

    /// Absent while nothing is known of the load.
    [[nodiscard]] std::optional<Hours> update(const std::vector<PackMoment> &packs, Hours awake);

    /// The machine slept: what was lost meanwhile is no load, and what comes may be another.
    void wake();

    /// Of the last update; absent unless the charge fell.
    [[nodiscard]] const std::optional<Drawn> &drawn() const { return m_drawn; }

private:
    void measure(double share, Hours awake);
    void takeReported(std::optional<double> load, Hours awake);
    [[nodiscard]] std::optional<double> load(Hours awake) const;
    /// What the load of the hours to come is likely to be.
    [[nodiscard]] double expected(double load) const;

    GaugeSteps m_steps { GaugeSteps::Towards::Empty };
    /// By the charge's fall, and by what the machine reports.
    LoadMean m_measured;
    LoadMean m_reported;
    CalmTime m_calm;
    std::optional<double> m_usual;
    double m_full = 0;
    std::optional<double> m_share;
    std::optional<Hours> m_lastReported;
    std::optional<double> m_lastLoad;
    Hours m_sameLoadSince {};
    int m_restarts = 0;
    std::optional<Drawn> m_drawn;
};

} // namespace ferrin
