// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/icon.h"

#include <algorithm>
#include <array>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array rawValues {
    "battery1V"_L1,
    "battery1H"_L1,
    "battery1HWithBolt"_L1,
    "battery2V"_L1,
    "battery2H"_L1,
    "battery2HWithBolt"_L1,
    "battery2VInverted"_L1,
    "battery2HInverted"_L1,
    "battery2HInvertedWithBolt"_L1,
    "battery2VBlack"_L1,
    "battery2HBlack"_L1,
    "battery2HBlackWithBolt"_L1,
    "arrow.up.square"_L1,
    "arrow.up.square.fill"_L1,
    "arrow.up.circle"_L1,
    "arrow.up.circle.fill"_L1,
    "arrowshape.up.circle"_L1,
    "arrowshape.up.circle.fill"_L1,
    "arrowshape.up"_L1,
    "arrowshape.up.fill"_L1,
    "arrowtriangle.up.circle"_L1,
    "arrowtriangle.up.circle.fill"_L1,
    "arrowtriangle.up.square"_L1,
    "arrowtriangle.up.square.fill"_L1,
    "arrow.down.square"_L1,
    "arrow.down.square.fill"_L1,
    "arrow.down.circle"_L1,
    "arrow.down.circle.fill"_L1,
    "arrowshape.down.circle"_L1,
    "arrowshape.down.circle.fill"_L1,
    "arrowshape.down"_L1,
    "arrowshape.down.fill"_L1,
    "arrowtriangle.down.circle"_L1,
    "arrowtriangle.down.circle.fill"_L1,
    "arrowtriangle.down.square"_L1,
    "arrowtriangle.down.square.fill"_L1,
    "arrow.up.to.line.circle"_L1,
    "arrow.up.to.line.circle.fill"_L1,
    "arrow.up.to.line.square"_L1,
    "arrow.up.to.line.square.fill"_L1,
    "bolt"_L1,
    "bolt.fill"_L1,
    "bolt.circle"_L1,
    "bolt.circle.fill"_L1,
    "bolt.square"_L1,
    "bolt.square.fill"_L1,
    "poweroutlet.type.a"_L1,
    "poweroutlet.type.a.fill"_L1,
    "poweroutlet.type.c"_L1,
    "poweroutlet.type.c.fill"_L1,
    "poweroutlet.type.g"_L1,
    "poweroutlet.type.g.fill"_L1,
};

constexpr auto icons = [] {
    std::array<Icon, rawValues.size()> all {};
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<Icon>(i);
    return all;
}();

static_assert(icons.size() == 52);
static_assert(icons.back() == Icon::poweroutletTypeGFill);

} // namespace

std::span<const Icon> allIcons()
{
    return icons;
}

QString rawValue(Icon icon)
{
    return rawValues.at(static_cast<std::size_t>(icon));
}

std::optional<Icon> iconFromRawValue(QStringView rawValue)
{
    const auto *const found = std::ranges::find_if(
        rawValues, [rawValue](QLatin1String candidate) { return candidate == rawValue; });
    if (found == rawValues.end())
        return std::nullopt;
    return static_cast<Icon>(found - rawValues.begin());
}

} // namespace ferrin
