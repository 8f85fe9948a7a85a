// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/stackviews.h"

#include "menubar/devicegrid.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

QRectF centredIn(const QRectF &bounds, const QSizeF &size)
{
    QRectF rect(QPointF(), size);
    rect.moveCenter(bounds.center());
    return rect;
}

qreal spacingOf(qreal spacing, std::size_t count)
{
    return count < 2 ? 0 : spacing * qreal(count - 1);
}

} // namespace

QSizeF RowView::idealSize(const ViewContext &context) const
{
    QSizeF size(spacingOf(spacing, children.size()), 0);
    for (const AnyView &child : children) {
        const QSizeF ideal = child.idealSize(context);
        size.rwidth() += ideal.width();
        size.setHeight(std::max(size.height(), ideal.height()));
    }
    return size;
}

void RowView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    const qreal spare = bounds.width() - idealSize(context).width();
    const auto spacers = std::ranges::count_if(
        children, [](const AnyView &child) { return child.as<SpacerView>() != nullptr; });

    const bool isMirrored = QGuiApplication::isRightToLeft() && !keepsOrder;
    qreal x = spacers ? bounds.left() : bounds.left() + spare / 2;
    for (const AnyView &child : children) {
        const QSizeF ideal = child.idealSize(context);
        QRectF place(x, bounds.center().y() - ideal.height() / 2, ideal.width(), ideal.height());
        if (isMirrored)
            place.moveRight(bounds.right() - (x - bounds.left()));
        child.paint(painter, place, context);
        x += spacing
            + (child.as<SpacerView>() ? std::max(0.0, ideal.width() + spare / qreal(spacers))
                                      : ideal.width());
    }
}

QSizeF ColumnView::idealSize(const ViewContext &context) const
{
    QSizeF size(0, spacingOf(spacing, children.size()));
    for (const AnyView &child : children) {
        const QSizeF ideal = child.idealSize(context);
        size.rheight() += ideal.height();
        size.setWidth(std::max(size.width(), ideal.width()));
    }
    return size;
}

void ColumnView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    qreal y = bounds.center().y() - idealSize(context).height() / 2;
    for (const AnyView &child : children) {
        const QSizeF ideal = child.idealSize(context);
        const QRectF place(bounds.center().x() - ideal.width() / 2, y, ideal.width(),
                           ideal.height());
        child.paint(painter, place, context);
        y += ideal.height() + spacing;
    }
}

QSizeF OverlayView::idealSize(const ViewContext &context) const
{
    QSizeF size(0, 0);
    for (const AnyView &layer : layers)
        size = size.expandedTo(layer.idealSize(context));
    return size;
}

void OverlayView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    QRectF whole = centredIn(bounds, idealSize(context));
    whole.moveTopLeft(DeviceGrid(painter).snapped(whole.topLeft()));
    for (const AnyView &layer : layers) {
        QRectF place = centredIn(whole, layer.idealSize(context));
        switch (alignment) {
        case OverlayAlignment::Centre:
            break;
        case OverlayAlignment::Bottom:
            place.moveBottom(whole.bottom());
            break;
        case OverlayAlignment::Leading:
            place.moveLeft(whole.left());
            break;
        }
        layer.paint(painter, place, context);
    }
}

QSizeF PaddedView::idealSize(const ViewContext &context) const
{
    return content.idealSize(context).grownBy(margins);
}

void PaddedView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    content.paint(painter, bounds.marginsRemoved(margins), context);
}

void FittedView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    const QSizeF ideal = content.idealSize(context);
    if (ideal.isEmpty()) {
        content.paint(painter, bounds, context);
        return;
    }
    const qreal zoom = std::min(bounds.width() / ideal.width(), bounds.height() / ideal.height());
    painter.save();
    painter.translate(bounds.topLeft());
    painter.scale(zoom, zoom);
    content.paint(painter, centredIn(QRectF(QPointF(), bounds.size() / zoom), ideal), context);
    painter.restore();
}

QSizeF OffsetView::idealSize(const ViewContext &context) const
{
    return content.idealSize(context);
}

void OffsetView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    content.paint(painter, bounds.translated(offset), context);
}

QSizeF CutOutView::idealSize(const ViewContext &context) const
{
    return content.idealSize(context);
}

void CutOutView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    // A layer of its own: cutting on the painter's device would take away what lies below as well.
    const DeviceGrid grid(painter);
    const QPointF topLeft = grid.toDevice(bounds.topLeft());
    const QPointF bottomRight = grid.toDevice(bounds.bottomRight());
    const QPoint origin(int(std::floor(topLeft.x())), int(std::floor(topLeft.y())));
    const QSize size(int(std::ceil(bottomRight.x())) - origin.x(),
                     int(std::ceil(bottomRight.y())) - origin.y());
    if (size.isEmpty())
        return;

    QImage layer(size, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    const QPointF shift = grid.toDevice({ 0, 0 }) - origin;
    layerPainter.translate(shift);
    layerPainter.scale(grid.scale(), grid.scale());
    content.paint(layerPainter, bounds, context);
    layerPainter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    mask.paint(layerPainter, centredIn(bounds, mask.idealSize(context)), context);
    layerPainter.end();

    const DevicePixels inDevicePixels(painter);
    painter.drawImage(origin, layer);
}

} // namespace ferrin
