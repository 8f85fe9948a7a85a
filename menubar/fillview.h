// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <QPainterPath>

#include <optional>

namespace ferrin {

/// A rectangle whose corners run smoothly into its sides: the curvature grows from nothing instead
/// of jumping. `radius` is that of the circular corner that it looks like.
[[nodiscard]] QPainterPath smoothlyRoundedRect(const QRectF &rect, qreal radius);

/// A filled rectangle with smooth corners, the charge inside a battery glyph.
struct FillView
{
    QSizeF size;
    /// Absent: the text colour.
    std::optional<QColor> color = {};
    qreal opacity = 1;
    qreal cornerRadius = 1.2;

    bool operator==(const FillView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return size; }
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
