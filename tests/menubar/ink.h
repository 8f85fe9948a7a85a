// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/view.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace ferrin::test {

inline const ViewContext blackOnClear { .text = QColor(Qt::black),
                                        .red = QColor(255, 0, 0),
                                        .fontFamily = QStringLiteral("DejaVu Sans") };

/// The view alone on a transparent picture of so many logical pixels.
inline QImage painted(const AnyView &view, const QSizeF &size, qreal scale = 1,
                      const ViewContext &context = blackOnClear)
{
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    view.paint(painter, QRectF(QPointF(), size), context);
    return image;
}

inline QImage painted(const AnyView &view, qreal scale = 1)
{
    return painted(view, view.idealSize(blackOnClear), scale);
}

/// How many pixels of a row would be covered if its ink were pushed together.
inline double inkOfRow(const QImage &image, int y)
{
    double ink = 0;
    for (int x = 0; x < image.width(); ++x)
        ink += qAlpha(image.pixel(x, y)) / 255.0;
    return ink;
}

inline double inkOfColumn(const QImage &image, int x)
{
    double ink = 0;
    for (int y = 0; y < image.height(); ++y)
        ink += qAlpha(image.pixel(x, y)) / 255.0;
    return ink;
}

/// The smallest rectangle outside of which the picture is transparent.
inline QRect inkedRect(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

inline double opacityAt(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) / 255.0;
}

inline bool near(double actual, double expected, double tolerance)
{
    return std::abs(actual - expected) <= tolerance;
}

/// A solid rectangle, to lay out with.
struct Block
{
    QSizeF size;

    bool operator==(const Block &) const = default;

    [[nodiscard]] QSizeF idealSize(const ViewContext &) const { return size; }
    void paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
    {
        painter.fillRect(bounds, context.text);
    }
};

} // namespace ferrin::test
