// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/forecast/chargeforecast.h"
#include "platform/linux/power/forecast/drawforecast.h"
#include "platform/linux/power/forecast/memorystore.h"

namespace ferrin {

enum class Direction {
    ToEmpty,
    ToFull,
};

/// The times to empty and to full of all packs together, and what is learned for them. Packs are
/// drained together, in whatever order; those that charge are full when the slowest of them is, and
/// those that wait for them come one after the other.
///
/// There is no time while nothing is known of the rate, nor one beyond 48 hours.
class Forecast
{
public:
    explicit Forecast(QString memoryPath);
    ~Forecast();
    Forecast(const Forecast &) = delete;
    Forecast &operator=(const Forecast &) = delete;

    /// What all batteries do at this moment; to be called once for each reading, in order. Without
    /// a direction they rest: `plugged` says that they do so on external power, where they may
    /// have come to the limit of their charge.
    std::optional<std::chrono::minutes> update(const std::vector<PackMoment> &packs,
                                               std::optional<Direction> direction, bool plugged,
                                               const Clocks &clocks);

    /// How long the batteries of the last update would last at the usual draw; absent while it is
    /// not known.
    [[nodiscard]] std::optional<std::chrono::minutes> available() const;

    /// Where the charge of these packs ends below full, in percent: by what the machine says, or
    /// by where it has been seen to stop; the lowest of several packs'.
    [[nodiscard]] std::optional<int> limit(const std::vector<PackMoment> &packs) const;

private:
    void turn(const std::vector<PackMoment> &packs, std::optional<Direction> direction);
    void wake();
    [[nodiscard]] std::optional<Hours> timeToEmpty(const std::vector<PackMoment> &packs,
                                                   Hours awake);
    [[nodiscard]] std::optional<Hours> timeToFull(const std::vector<PackMoment> &packs,
                                                  Hours awake);
    void watchCharges(const std::vector<PackMoment> &packs, Hours awake);
    void rememberCharges();
    void watchStop(const PackMoment &pack, bool plugged, Hours awake);
    [[nodiscard]] std::optional<double> usualDraw(const std::vector<PackMoment> &packs) const;

    MemoryStore m_store;
    std::vector<PackMoment> m_packs;
    std::optional<Direction> m_direction;
    std::optional<Clocks> m_clocks;
    DrawForecast m_draw { std::nullopt };
    std::map<std::string, ChargeForecast> m_charges;
    CalmTime m_calm;
    /// Since when each pack that was charging rests at a charge.
    struct Rest
    {
        int percent = 0;
        Hours since {};
    };
    std::map<std::string, Rest> m_rests;
};

} // namespace ferrin
