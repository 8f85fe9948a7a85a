// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/iconcatalogues.h"

#include <array>

namespace ferrin {

namespace {

/// The icons from `first` to `last`, both included.
template <Icon first, Icon last>
constexpr auto run = [] {
    std::array<Icon, static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1> icons {};
    for (std::size_t i = 0; i < icons.size(); ++i)
        icons[i] = static_cast<Icon>(static_cast<std::size_t>(first) + i);
    return icons;
}();

template <std::size_t a, std::size_t b>
constexpr std::array<Icon, a + b> joined(const std::array<Icon, a> &left,
                                         const std::array<Icon, b> &right)
{
    std::array<Icon, a + b> all {};
    for (std::size_t i = 0; i < a; ++i)
        all[i] = left[i];
    for (std::size_t i = 0; i < b; ++i)
        all[a + i] = right[i];
    return all;
}

constexpr std::array glyphsWithoutBolt {
    Icon::battery1V,         Icon::battery1H,         Icon::battery2V,      Icon::battery2H,
    Icon::battery2VInverted, Icon::battery2HInverted, Icon::battery2VBlack, Icon::battery2HBlack,
};
constexpr auto glyphs = run<Icon::battery1V, Icon::battery2HBlackWithBolt>;
constexpr auto upArrows = run<Icon::arrowUpSquare, Icon::arrowtriangleUpSquareFill>;
constexpr auto downArrows = run<Icon::arrowDownSquare, Icon::arrowtriangleDownSquareFill>;
constexpr auto upToLineArrows = run<Icon::arrowUpToLineCircle, Icon::arrowUpToLineSquareFill>;
constexpr auto boltsAndOutlets = run<Icon::bolt, Icon::poweroutletTypeGFill>;

constexpr auto discharging = joined(glyphsWithoutBolt, downArrows);
constexpr auto charging = joined(joined(glyphs, upArrows), boltsAndOutlets);
constexpr auto charged = joined(joined(glyphs, upToLineArrows), boltsAndOutlets);

static_assert(discharging.size() == 20);
static_assert(charging.size() == 36);
static_assert(charged.size() == 28);

} // namespace

DischargingIconsAvailable::DischargingIconsAvailable()
    : list(discharging)
{
}

const DischargingIconsAvailable &DischargingIconsAvailable::shared()
{
    static const DischargingIconsAvailable catalogue;
    return catalogue;
}

ChargingIconsAvailable::ChargingIconsAvailable()
    : list(charging)
{
}

const ChargingIconsAvailable &ChargingIconsAvailable::shared()
{
    static const ChargingIconsAvailable catalogue;
    return catalogue;
}

ChargedIconsAvailable::ChargedIconsAvailable()
    : list(charged)
{
}

const ChargedIconsAvailable &ChargedIconsAvailable::shared()
{
    static const ChargedIconsAvailable catalogue;
    return catalogue;
}

} // namespace ferrin
