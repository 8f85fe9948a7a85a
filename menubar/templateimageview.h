// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <optional>

namespace ferrin {

/// A monochrome image of the application's own artwork, used as a stencil for a colour. It is
/// rendered for the very pixels that it lands on, so that it is as sharp at 3x as at 1x. The last
/// renderings are kept for all views; only the main thread paints.
struct TemplateImageView
{
    /// The artwork ":/symbols/<name>.svg".
    QString name;
    /// Logical pixels; absent: the artwork's own height. The width follows from its shape.
    std::optional<qreal> height = {};
    /// Absent: the text colour.
    std::optional<QColor> color = {};
    qreal opacity = 1;

    bool operator==(const TemplateImageView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    /// Centred in the bounds and moved to whole device pixels. Artwork 16.5 high is drawn for a
    /// grid that starts a quarter from its edge, and it is that grid that meets the pixels.
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
