// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/squarebatteryview.h"

#include "menubar/devicegrid.h"
#include "menubar/fillview.h"
#include "menubar/fittedtextview.h"
#include "menubar/glyphdrawing.h"
#include "menubar/iconview.h"
#include "menubar/templateimageview.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal strong = 0.875;

/// How the parts of a glyph are painted where something is written in it and where nothing is.
struct Tones
{
    qreal outline;
    qreal fill;
    /// The outline is the whole body.
    bool isSolid = false;
    /// What is written in the glyph is cut out of the fill.
    bool isCutOut = false;
};

Tones tonesOf(Icon glyph, bool isPlain)
{
    const auto [shape, style] = drawingOf(glyph);
    const bool isFirstGeneration = shape == GlyphShape::Upright1 || shape == GlyphShape::Lying1
        || shape == GlyphShape::Lying1WithBolt;
    if (isFirstGeneration)
        return { .outline = isPlain ? 0.4 : 0.25, .fill = isPlain ? strong : 0.3, .isSolid = true };
    switch (style) {
    case BatteryStyle::normal:
        return { .outline = 0.6, .fill = isPlain ? strong : 0.35 };
    case BatteryStyle::inverted:
        return { .outline = 1, .fill = isPlain ? 0.45 : 0.15 };
    case BatteryStyle::black:
        return { .outline = 1, .fill = 1, .isCutOut = !isPlain };
    }
    Q_UNREACHABLE();
}

QColor withOpacity(QColor color, qreal opacity)
{
    color.setAlphaF(float(color.alphaF() * opacity));
    return color;
}

/// The parts of the battery in whole device pixels.
struct Geometry
{
    bool upright;
    int stroke;
    qreal radius;
    QRect body;
    QRect terminal;
    QRect inside;

    Geometry(const QRect &place, bool isUpright)
        : upright(isUpright)
    {
        const int length = upright ? place.height() : place.width();
        // An upright one shares the cell and is no longer than half of it.
        const qreal unit = length / (upright ? 12.0 : 22.0);
        stroke = std::max(1, int(std::lround(unit)));
        radius = unit * 2.5;
        const int cap = std::max(1, int(std::lround(unit * 1.5)));
        body = upright ? place.adjusted(0, cap, 0, 0) : place.adjusted(0, 0, -cap, 0);
        inside = body.adjusted(stroke, stroke, -stroke, -stroke);
        terminal = terminalOf(place, cap);
    }

    [[nodiscard]] QRect terminalOf(const QRect &place, int cap) const
    {
        // As odd or even as the body's side is, so that it stands in the middle.
        const int side = upright ? body.width() : body.height();
        const int inset = int(std::lround(side / 3.0));
        return upright ? QRect(body.left() + inset, place.top(), side - 2 * inset, cap)
                       : QRect(place.right() + 1 - cap, body.top() + inset, cap, side - 2 * inset);
    }

    [[nodiscard]] QRect filled(double percent) const
    {
        const double share = std::clamp(percent, 0.0, 100.0) / 100;
        QRect result = inside;
        if (upright)
            result.setTop(inside.bottom() + 1 - int(std::lround(inside.height() * share)));
        else
            result.setWidth(int(std::lround(inside.width() * share)));
        return result;
    }
};

void paintOutline(QPainter &painter, const Geometry &geometry, const QColor &color, bool isSolid)
{
    QPainterPath outline = smoothlyRoundedRect(geometry.body, geometry.radius);
    if (!isSolid)
        outline.addPath(smoothlyRoundedRect(geometry.inside, geometry.radius - geometry.stroke));
    outline.setFillRule(Qt::OddEvenFill);
    painter.fillPath(outline, color);
    painter.fillRect(geometry.terminal, color);
}

void paintFill(QPainter &painter, const Geometry &geometry, double percent, const QColor &color)
{
    painter.save();
    painter.setClipRect(geometry.filled(percent));
    painter.fillPath(smoothlyRoundedRect(geometry.inside, geometry.radius - geometry.stroke),
                     color);
    painter.restore();
}

TemplateImageView boltView(int height)
{
    return { .name = u"bolt.fill"_s, .height = height };
}

/// What is written in the battery.
void paintInside(QPainter &painter, const Geometry &geometry, const SquareBatteryView &view,
                 const ViewContext &context)
{
    if (view.charge.isEmpty()) {
        if (view.bolt)
            boltView(geometry.inside.height()).paint(painter, geometry.inside, context);
        return;
    }
    const int gap = geometry.stroke;
    QRect figures = geometry.inside.adjusted(gap, gap, -gap, -gap);
    if (view.bolt) {
        const TemplateImageView bolt = boltView(figures.height());
        const int width = int(std::ceil(bolt.idealSize(context).width()));
        // Up to the wall: a bolt is slim at its ends, and the figures need the room.
        bolt.paint(
            painter,
            QRect(geometry.inside.right() + 1 - width, figures.top(), width, figures.height()),
            context);
        figures.setLeft(geometry.inside.left());
        figures.setRight(geometry.inside.right() - width - gap);
    }
    FittedTextView { view.charge }.paint(painter, figures, context);
}

/// Fill and figures on a layer of their own, where either shows only without the other.
void paintCutOut(QPainter &painter, const Geometry &geometry, const SquareBatteryView &view,
                 const QColor &fill, const ViewContext &context)
{
    QImage layer(geometry.body.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    layerPainter.setRenderHint(QPainter::Antialiasing);
    const QPoint origin = geometry.body.topLeft();
    Geometry moved = geometry;
    moved.body.translate(-origin);
    moved.inside.translate(-origin);
    paintFill(layerPainter, moved, view.icon.charge, fill);
    layerPainter.setCompositionMode(QPainter::CompositionMode_Xor);
    paintInside(layerPainter, moved, view, context);
    layerPainter.end();
    painter.drawImage(origin, layer);
}

} // namespace

void SquareBatteryView::paint(QPainter &painter, const QRectF &bounds,
                              const ViewContext &context) const
{
    const DeviceGrid grid(painter);
    const QPointF topLeft = grid.toDevice(grid.snapped(bounds.topLeft()));
    const DevicePixels inDevicePixels(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const Geometry geometry(QRect(topLeft.toPoint(), (bounds.size() * grid.scale()).toSize()),
                            isUpright(icon.icon));

    const Tones tones = tonesOf(icon.icon, charge.isEmpty() && !bolt);
    const bool low = isNearlyEmpty(icon.charge, icon.status) && !bolt;
    // What is left of the fill is too little to be seen at a glance.
    const QColor outline = low ? withOpacity(context.red, std::max(tones.outline, strong))
                               : withOpacity(context.text, tones.outline);
    const QColor fill
        = low ? withOpacity(context.red, strong) : withOpacity(context.text, tones.fill);
    paintOutline(painter, geometry, outline, tones.isSolid && !low);
    if (tones.isCutOut) {
        paintCutOut(painter, geometry, *this, fill, context);
        return;
    }
    paintFill(painter, geometry, icon.charge, fill);
    paintInside(painter, geometry, *this, context);
}

} // namespace ferrin
