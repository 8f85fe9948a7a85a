// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/textview.h"

#include "menubar/devicegrid.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

/// Logical pixels of text whose strokes are thinner than one.
constexpr int largestThinText = 11;

QFont fontOf(const TextView &view, int pixelSize, const ViewContext &context)
{
    QFont font(context.fontFamily);
    font.setPixelSize(pixelSize);
    font.setWeight(context.isCoarse ? std::max(view.weight, QFont::Medium) : view.weight);
    // Advances must not depend on the scale, so only heights may follow the pixel grid.
    font.setHintingPreference(context.isCoarse ? QFont::PreferFullHinting
                                               : QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

} // namespace

QSizeF TextView::idealSize(const ViewContext &context) const
{
    const QFontMetricsF metrics(fontOf(*this, pixelSize, context));
    return { metrics.horizontalAdvance(text), qreal(pixelSize) };
}

void TextView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    const DeviceGrid grid(painter);
    const int devicePixelSize = std::max(1, int(std::lround(pixelSize * grid.scale())));
    // Between whole sizes the nearest one is stretched to the exact width.
    const qreal stretch = pixelSize * grid.scale() / devicePixelSize;
    const QFont font = fontOf(*this, devicePixelSize, context);
    const QFontMetricsF metrics(font);

    const QPointF centre = grid.toDevice(bounds.center());
    const qreal width = metrics.horizontalAdvance(text) * stretch;
    const qreal capHeight = metrics.capHeight() * stretch;
    const QPointF baseline(centre.x() - width / 2, std::floor(centre.y() + capHeight / 2 + 0.5));

    const DevicePixels inDevicePixels(painter);
    painter.translate(baseline);
    painter.scale(stretch, stretch);
    painter.setFont(font);
    QColor color = context.text;
    color.setAlphaF(float(context.text.alphaF() * (context.isCoarse ? 1 : opacity)));
    painter.setPen(color);
    painter.drawText(QPointF(0, 0), text);
    // Strokes that are thinner than a pixel have but a part of the tone that larger text has.
    if (context.isCoarse && pixelSize <= largestThinText)
        painter.drawText(QPointF(0, 0), text);
}

} // namespace ferrin
