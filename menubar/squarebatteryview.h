// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

namespace ferrin {

/// A battery glyph for square cells, drawn on whole device pixels. A lying one has room for the
/// charge and a bolt: they stand on a pale fill, so that they read on the empty part as on the full
/// one, or are cut out of the strong fill of the black style. With neither in it the fill is
/// strong.
struct SquareBatteryView
{
    IconElement icon;
    /// "37", "??"; empty where it stands elsewhere or nowhere.
    QString charge;
    /// Beside the figures, or in the middle where there are none.
    bool bolt = false;

    bool operator==(const SquareBatteryView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return { 0, 0 }; }
    /// Fills the bounds.
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
