// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/icon.h"

#include <span>

namespace ferrin {

/// The icons that the user may choose for one battery state, in the order of the settings pages.
/// Each state has one catalogue, which is created on first use and constant. The first entry is the
/// default of the state.
class DischargingIconsAvailable
{
public:
    [[nodiscard]] static const DischargingIconsAvailable &shared();

    const std::span<const Icon> list;

private:
    DischargingIconsAvailable();
};

/// As DischargingIconsAvailable, while the battery charges.
class ChargingIconsAvailable
{
public:
    [[nodiscard]] static const ChargingIconsAvailable &shared();

    const std::span<const Icon> list;

private:
    ChargingIconsAvailable();
};

/// As DischargingIconsAvailable, once the battery is charged.
class ChargedIconsAvailable
{
public:
    [[nodiscard]] static const ChargedIconsAvailable &shared();

    const std::span<const Icon> list;

private:
    ChargedIconsAvailable();
};

} // namespace ferrin
