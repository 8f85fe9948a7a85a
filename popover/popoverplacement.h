// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/itemplace.h"

#include <QRect>
#include <QSize>

#include <array>

namespace ferrin {

/// Where a popover stands, seen from what it belongs to.
enum class PopoverSide { Below, Above, Right, Left };

/// The place of a popover. All in logical pixels of the desktop.
struct PopoverSpot
{
    /// The popover as it is seen, without its shadow and arrow.
    QRect frame {};
    /// What its shadow must not leave, either.
    QRect bounds {};
    PopoverSide side = PopoverSide::Below;
    /// Where an arrow points from, counted along the side of the frame that faces what the popover
    /// belongs to, from its left or top end.
    int arrow = 0;

    bool operator==(const PopoverSpot &) const = default;
};

struct ScreenArea
{
    QRect whole {};
    /// The part that is free of panels, as far as the desktop reports.
    QRect available {};
};

/// Between a popover and the panel, and the edges of the screen where there is room for it.
inline constexpr int popoverGap = 6;
/// The same of an explanation, so that its border does not run along that of what it explains.
inline constexpr int explanationGap = 16;

/// A popover of the status item: off the panel, on the panel's inner side, centred on the item and
/// moved as little as needed to lie wholly on the screen. Without a panel the nearest edge of the
/// screen is taken for it; without any place the popover stands in the corner where status areas
/// usually are.
[[nodiscard]] PopoverSpot spotAtItem(const ItemPlace &place, const QSize &size,
                                     const ScreenArea &screen);

/// The sides of a part of a window in the order in which a popover tries them.
using PopoverSides = std::array<PopoverSide, 4>;

/// A popover outside of the window covers least when it stands below or above.
inline constexpr PopoverSides outerSides { PopoverSide::Below, PopoverSide::Above,
                                           PopoverSide::Right, PopoverSide::Left };
/// One inside of it leaves the column of its part in sight, and stands where its reader has come
/// from.
[[nodiscard]] PopoverSides innerSides();

/// A popover that belongs to a part of a window: on the first of the sides where there is room,
/// else where there is most, and always wholly in what is available.
[[nodiscard]] PopoverSpot spotAtPart(const QRect &part, const QSize &size, const QRect &available,
                                     const PopoverSides &sides = outerSides);

} // namespace ferrin
