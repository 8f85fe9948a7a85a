// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/itemplace.h"

#include <QPoint>

namespace ferrin {

/// A screen as Qt sees an X server's: its corner is where the server has it, its size is in logical
/// pixels of `ratio` device pixels each.
struct ScaledScreen
{
    QRect geometry;
    qreal ratio = 1;
};

/// The logical rectangle that covers this one of device pixels, whole pixels outwards.
[[nodiscard]] QRect logicalRect(const QRect &device, const ScaledScreen &screen);

/// The other way round, of a corner.
[[nodiscard]] QPoint devicePoint(QPoint logical, const ScaledScreen &screen);

/// The place of an item that was clicked at `pointer`, in logical pixels. `dock` is the panel's
/// window under the pointer in device pixels, null for none; one that is too thick for a panel is
/// none either.
[[nodiscard]] ItemPlace placeOfClick(QPoint pointer, const QRect &dock, const ScaledScreen &screen);

/// The same of an item whose window is known; both are in device pixels.
[[nodiscard]] ItemPlace placeOfItem(const QRect &item, const QRect &dock,
                                    const ScaledScreen &screen);

/// No panel is thicker, in logical pixels.
inline constexpr int thickestPanel = 72;

/// The place of an item that was clicked at `pointer`, for windows that the desktop itself keeps
/// off its panels: a click so near to an edge of the screen was on a panel there, and counts as one
/// on the edge.
[[nodiscard]] ItemPlace placeAtEdge(QPoint pointer, const QRect &screen);

} // namespace ferrin
