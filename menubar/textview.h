// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <QFont>

namespace ferrin {

/// One line of text in the context's font and colour. Its box is as high as the font's pixel size
/// and figures stand in the middle of it, so that lines can stand close without touching; it is
/// meant for figures and signs, which have no descenders.
struct TextView
{
    QString text;
    /// Logical pixels.
    int pixelSize = 11;
    qreal opacity = 0.875;
    QFont::Weight weight = QFont::Normal;

    bool operator==(const TextView &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &context) const;
    /// Centred in the bounds.
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const;
};

} // namespace ferrin
