// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/roundedrect.h"

#include "menubar/devicegrid.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

QPainterPath rounded(const QRectF &rect, qreal radius)
{
    const qreal within = std::clamp(radius, 0.0, std::min(rect.width(), rect.height()) / 2);
    QPainterPath path;
    path.addRoundedRect(rect, within, within);
    return path;
}

/// What lies between two rectangles, the outer of which has this radius.
QPainterPath ring(const QRectF &outer, const QRectF &inner, qreal radius)
{
    QPainterPath path = rounded(outer, radius);
    path.addPath(rounded(inner, radius - (inner.left() - outer.left())));
    return path;
}

} // namespace

QBrush RoundedRect::fill(const QRectF &area) const
{
    if (!m_endColor.isValid())
        return m_color;
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, m_color);
    gradient.setColorAt(m_endsAt, m_endColor);
    return gradient;
}

void RoundedRect::paint(QPainter *painter)
{
    const DeviceGrid grid(*painter);
    const QRectF outer(grid.snapped(boundingRect().topLeft()),
                       grid.snapped(boundingRect().bottomRight()));
    if (outer.isEmpty())
        return;
    const bool hasBorder = m_borderWidth > 0 && m_borderColor.alpha() > 0;
    const qreal line
        = hasBorder ? std::max(1.0, std::round(m_borderWidth * grid.scale())) / grid.scale() : 0;
    // The fill ends within the border, so that it does not shine through the border's soft edges.
    const auto inside = [&outer](qreal by) { return outer.adjusted(by, by, -by, -by); };
    if (m_color.alpha() > 0 || m_endColor.alpha() > 0)
        painter->fillPath(rounded(inside(line / 2), m_radius - line / 2), fill(outer));
    if (hasBorder)
        painter->fillPath(ring(outer, inside(line), m_radius), m_borderColor);
}

} // namespace ferrin
