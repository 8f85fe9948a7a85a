// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/gauge.h"

#include <QConicalGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ferrin {

namespace {

/// Logical pixels. The outer edge of the ring lies on whole ones.
constexpr qreal diameter = 26;
constexpr qreal stroke = 3;

/// Degrees, counter-clockwise from three o'clock.
constexpr qreal emptyEnd = 225;
constexpr qreal sweep = 270;
constexpr qreal bottom = 270;

/// Starts in the middle of the gap, so that the round caps have the colours of the arc's ends.
QBrush gradientOf(const QList<QColor> &colors, const QPointF &centre)
{
    constexpr qreal gap = (360 - sweep) / 2 / 360;
    QConicalGradient gradient(centre, bottom);
    const qreal last = qreal(colors.size() - 1);
    for (qsizetype i = 0; i < colors.size(); ++i)
        gradient.setColorAt(1 - gap - qreal(i) / last * (sweep / 360), colors[i]);
    gradient.setColorAt(0, colors.constLast());
    gradient.setColorAt(1, colors.constFirst());
    return gradient;
}

void drawArc(QPainter &painter, const QRectF &ring, const QBrush &brush, qreal share)
{
    // Painters count sixteenths of a degree.
    painter.setPen(QPen(brush, stroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, int(emptyEnd * 16), -int(std::lround(sweep * 16 * share)));
}

} // namespace

Gauge::Gauge(QQuickItem *parent)
    : PaintedItem(parent)
{
    setImplicitSize(frame, frame);
}

void Gauge::setValue(qreal value)
{
    const qreal within = std::clamp(value, 0.0, 1.0);
    if (std::exchange(m_value, within) == within)
        return;
    update();
    Q_EMIT valueChanged();
}

void Gauge::setColors(const QList<QColor> &colors)
{
    if (colors.size() < 2 || std::exchange(m_colors, colors) == colors)
        return;
    update();
    Q_EMIT colorsChanged();
}

void Gauge::setTrackColor(const QColor &color)
{
    if (std::exchange(m_trackColor, color) == color)
        return;
    update();
    Q_EMIT trackColorChanged();
}

void Gauge::paint(QPainter *painter)
{
    const QPointF centre = boundingRect().center();
    constexpr qreal radius = (diameter - stroke) / 2;
    const QRectF ring(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    painter->setRenderHint(QPainter::Antialiasing);
    drawArc(*painter, ring, m_trackColor, 1);
    if (m_value > 0)
        drawArc(*painter, ring, gradientOf(m_colors, centre), m_value);
}

} // namespace ferrin
