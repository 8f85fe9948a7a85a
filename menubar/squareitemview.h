// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

namespace ferrin {

/// The whole item in a square cell, for hosts that would shrink anything wider out of legibility.
/// One element fills the cell and two share it. The charge stands inside a lying battery, and
/// beside an upright one or a symbol; the time stands below. It is laid out in device pixels,
/// whatever the cell's size: at 22 of them there is none to waste.
struct SquareItemView
{
    ItemContent content;

    bool operator==(const SquareItemView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return { 22, 22 }; }
    /// Fills the bounds, which are as wide as they are high.
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
