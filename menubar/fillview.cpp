// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/fillview.h"

#include <QPainter>

#include <algorithm>

namespace ferrin {

QPainterPath smoothlyRoundedRect(const QRectF &rect, qreal radius)
{
    // A cubic with both control points on the corner leaves either side without curvature. It comes
    // as near to the corner as a circle of this radius when it starts this many radii away.
    constexpr qreal reach = 2.343;
    const qreal start = std::min({ radius * reach, rect.width() / 2, rect.height() / 2 });
    const qreal l = rect.left();
    const qreal t = rect.top();
    const qreal r = rect.right();
    const qreal b = rect.bottom();

    QPainterPath path({ l + start, t });
    path.lineTo(r - start, t);
    path.cubicTo(r, t, r, t, r, t + start);
    path.lineTo(r, b - start);
    path.cubicTo(r, b, r, b, r - start, b);
    path.lineTo(l + start, b);
    path.cubicTo(l, b, l, b, l, b - start);
    path.lineTo(l, t + start);
    path.cubicTo(l, t, l, t, l + start, t);
    path.closeSubpath();
    return path;
}

void FillView::paint(QPainter &painter, const QRectF &bounds, const ViewContext &context) const
{
    if (size.isEmpty())
        return;
    QRectF rect(QPointF(), size);
    rect.moveCenter(bounds.center());
    QColor fill = color.value_or(context.text);
    fill.setAlphaF(float(fill.alphaF() * opacity));

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(smoothlyRoundedRect(rect, cornerRadius), fill);
    painter.restore();
}

} // namespace ferrin
