// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/squarebatteryview.h"

#include "menubar/devicegrid.h"
#include "menubar/fillview.h"
#include "menubar/fittedtextview.h"
#include "menubar/iconview.h"
#include "menubar/templateimageview.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal outlineOpacity = 0.6;
constexpr qreal fillOpacity = 0.35;
constexpr qreal strongFillOpacity = 0.875;

QColor withOpacity(QColor color, qreal opacity)
{
    color.setAlphaF(float(color.alphaF() * opacity));
    return color;
}

/// The parts of the battery in whole device pixels.
struct Geometry
{
    int stroke;
    qreal radius;
    QRect body;
    QRect terminal;
    QRect inside;

    explicit Geometry(const QRect &place)
        : stroke(std::max(1, int(std::lround(place.width() / 22.0))))
        , radius(place.width() * 2.5 / 22)
    {
        const int cap = std::max(1, int(std::lround(place.width() * 1.5 / 22)));
        body = place.adjusted(0, 0, -cap, 0);
        inside = body.adjusted(stroke, stroke, -stroke, -stroke);
        // As odd or even as the body is, so that it stands in the middle.
        const int length = body.height() - 2 * int(std::lround(body.height() / 3.0));
        terminal = QRect(place.right() + 1 - cap, body.top() + (body.height() - length) / 2, cap,
                         length);
    }
};

void paintOutline(QPainter &painter, const Geometry &geometry, const QColor &color)
{
    QPainterPath outline = smoothlyRoundedRect(geometry.body, geometry.radius);
    outline.addPath(smoothlyRoundedRect(geometry.inside, geometry.radius - geometry.stroke));
    outline.setFillRule(Qt::OddEvenFill);
    painter.fillPath(outline, color);
    painter.fillRect(geometry.terminal, color);
}

void paintFill(QPainter &painter, const Geometry &geometry, double percent, const QColor &color)
{
    QRect filled = geometry.inside;
    filled.setWidth(int(std::lround(filled.width() * std::clamp(percent, 0.0, 100.0) / 100)));
    painter.save();
    painter.setClipRect(filled);
    painter.fillPath(smoothlyRoundedRect(geometry.inside, geometry.radius - geometry.stroke),
                     color);
    painter.restore();
}

TemplateImageView boltView(int height)
{
    return { .name = u"bolt.fill"_s, .height = height };
}

} // namespace

bool hasBolt(Icon icon)
{
    return icon == Icon::battery1HWithBolt || icon == Icon::battery2HWithBolt
        || icon == Icon::battery2HInvertedWithBolt || icon == Icon::battery2HBlackWithBolt;
}

void SquareBatteryView::paint(QPainter &painter, const QRectF &bounds,
                              const ViewContext &context) const
{
    const DeviceGrid grid(painter);
    const QPointF topLeft = grid.toDevice(grid.snapped(bounds.topLeft()));
    const DevicePixels inDevicePixels(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const Geometry geometry(QRect(topLeft.toPoint(), (bounds.size() * grid.scale()).toSize()));

    const bool low = isNearlyEmpty(icon.charge, icon.status) && !bolt;
    const bool isPlain = charge.isEmpty() && !bolt;
    // What is left of the fill is too little to be seen at a glance.
    paintOutline(painter, geometry,
                 low ? withOpacity(context.red, strongFillOpacity)
                     : withOpacity(context.text, outlineOpacity));
    paintFill(painter, geometry, icon.charge,
              low ? withOpacity(context.red, strongFillOpacity)
                  : withOpacity(context.text, isPlain ? strongFillOpacity : fillOpacity));

    if (charge.isEmpty()) {
        if (bolt)
            boltView(geometry.inside.height()).paint(painter, geometry.inside, context);
        return;
    }
    const int gap = geometry.stroke;
    QRect figures = geometry.inside.adjusted(gap, gap, -gap, -gap);
    if (bolt) {
        const TemplateImageView view = boltView(figures.height());
        const int width = int(std::ceil(view.idealSize(context).width()));
        // Up to the wall: a bolt is slim at its ends, and the figures need the room.
        view.paint(
            painter,
            QRect(geometry.inside.right() + 1 - width, figures.top(), width, figures.height()),
            context);
        figures.setLeft(geometry.inside.left());
        figures.setRight(geometry.inside.right() - width - gap);
    }
    FittedTextView { charge }.paint(painter, figures, context);
}

} // namespace ferrin
