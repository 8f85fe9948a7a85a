// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

namespace ferrin {

/// Bold figures as large as their place allows, squeezed a little where that makes them larger.
/// For the smallest cells, where every pixel counts; elsewhere TextView keeps to one size.
struct FittedTextView
{
    QString text;

    bool operator==(const FittedTextView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return { 0, 0 }; }
    /// Centred in the bounds, with the feet of the figures on whole device pixels.
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
