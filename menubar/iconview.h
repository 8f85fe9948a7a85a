// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "menubar/view.h"
#include "state/icon.h"

namespace ferrin {

/// The height that symbols are drawn at, logical pixels.
inline constexpr qreal symbolHeight = 16.5;

/// Whether a battery at this charge, in percent, is shown in red.
[[nodiscard]] constexpr bool isNearlyEmpty(double charge, BatteryChargingStatus status)
{
    return status == BatteryChargingStatus::discharging && charge <= 10;
}

/// Draws any icon for a charge and a status: a glyph, red inside while nearly empty (one with a
/// bolt never is), or a symbol.
struct IconView
{
    Icon icon = Icon::battery1V;
    /// Percent, 0 to 100.
    double charge = 0;
    BatteryChargingStatus status = BatteryChargingStatus::unknown;

    bool operator==(const IconView &) const = default;

    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

} // namespace ferrin
