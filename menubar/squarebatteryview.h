// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

namespace ferrin {

/// The glyph is drawn with a bolt over it.
[[nodiscard]] bool hasBolt(Icon icon);

/// A lying battery with the charge written in it, for square cells: the figures stand on a pale
/// fill, so that they read on the empty part as on the full one, and so does a bolt; where there is
/// neither, the fill is strong. Drawn for the pixels of its place.
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
