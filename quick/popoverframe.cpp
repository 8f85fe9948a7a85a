// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/popoverframe.h"

#include "popover/popoverplacement.h"
#include "quick/softshadow.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>

#include <utility>

namespace ferrin {

namespace {

constexpr int arrowLength = 8;
constexpr int arrowHalfWidth = 9;
constexpr qreal shadowSoftness = 18;
constexpr qreal shadowDrop = 4;

// The arrow as if it stood on a top side at 0, a little round at its tip.
QPainterPath arrowOnTop()
{
    constexpr qreal tip = 2.5;
    QPainterPath path(QPointF(-arrowHalfWidth, 1));
    path.lineTo(-arrowHalfWidth, 0);
    path.lineTo(-tip, tip - arrowLength);
    path.quadTo(0, -arrowLength, tip, tip - arrowLength);
    path.lineTo(arrowHalfWidth, 0);
    path.lineTo(arrowHalfWidth, 1);
    path.closeSubpath();
    return path;
}

QTransform toArrow(const QRectF &frame, const PopoverFrame::Arrow &arrow)
{
    QTransform transform;
    switch (arrow.side) {
    case PopoverSide::Below:
        return transform.translate(frame.left() + arrow.along, frame.top());
    case PopoverSide::Above:
        return transform.translate(frame.left() + arrow.along, frame.bottom()).rotate(180);
    case PopoverSide::Right:
        return transform.translate(frame.left(), frame.top() + arrow.along).rotate(-90);
    case PopoverSide::Left:
        return transform.translate(frame.right(), frame.top() + arrow.along).rotate(90);
    }
    return transform;
}

} // namespace

PopoverFrame::PopoverFrame(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void PopoverFrame::setGround(const QColor &ground)
{
    if (std::exchange(m_ground, ground) == ground)
        return;
    update();
    Q_EMIT groundChanged();
}

void PopoverFrame::setDark(bool isDark)
{
    if (std::exchange(m_isDark, isDark) == isDark)
        return;
    update();
    Q_EMIT isDarkChanged();
}

void PopoverFrame::setLine(const QColor &line)
{
    if (std::exchange(m_line, line) == line)
        return;
    update();
    Q_EMIT lineChanged();
}

void PopoverFrame::setFraming(const QMargins &margins, const std::optional<Arrow> &arrow,
                              bool isBlended)
{
    m_margins = margins;
    m_arrow = arrow;
    m_isBlended = isBlended;
    update();
}

QPainterPath PopoverFrame::outline(qreal inset) const
{
    const QRectF frame = QRectF(QPointF(), size())
                             .marginsRemoved(m_margins)
                             .adjusted(inset, inset, -inset, -inset);
    QPainterPath path;
    path.addRoundedRect(frame, radius - inset, radius - inset);
    if (!m_arrow)
        return path;
    const Arrow arrow { m_arrow->side, m_arrow->along - inset };
    return path.united(toArrow(frame, arrow).map(arrowOnTop())).simplified();
}

QPointF PopoverFrame::standBeside(const QRectF &part, const QSizeF &content, const QRectF &within)
{
    const PopoverSpot spot
        = spotAtPart(part.toRect(), content.toSize(), within.toRect(), innerSides());
    const QMargins margins(shadowReach, shadowReach, shadowReach, shadowReach);
    const QRect whole = spot.frame.marginsAdded(margins);
    setPosition(whole.topLeft());
    setSize(whole.size());
    setFraming(margins, Arrow { .side = spot.side, .along = qreal(spot.arrow) }, true);
    // As many pixels as are seen of it where the scene is enlarged.
    const qreal zoom = mapRectToScene(QRectF(0, 0, 1, 1)).width();
    setTextureSize((size() * zoom * window()->effectiveDevicePixelRatio()).toSize());
    return { qreal(margins.left()), qreal(margins.top()) };
}

void PopoverFrame::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_isBlended) {
        paintShadow(*painter);
        painter->fillPath(outline(), m_ground);
        paintBorder(*painter);
    } else {
        paintCutOut(*painter);
    }
}

void PopoverFrame::paintShadow(QPainter &painter) const
{
    const int darkness = m_isDark ? 150 : 90;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(
        QRectF(QPointF(), size()),
        softShadow(outline().translated(0, shadowDrop), size().toSize(), shadowSoftness, darkness));
}

// A dark line around and a light one within: one of them is seen on any wallpaper.
void PopoverFrame::paintBorder(QPainter &painter) const
{
    constexpr qreal half = 0.5;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QColor(0, 0, 0, m_isDark ? 140 : 52));
    painter.drawPath(outline(-half));
    const QColor light(255, 255, 255, m_isDark ? 40 : 160);
    painter.setPen(m_line.alpha() > 0 ? m_line : light);
    painter.drawPath(outline(half));
}

// The window ends in steps of whole pixels, all of which are the border's.
void PopoverFrame::paintCutOut(QPainter &painter) const
{
    const QColor usual = m_isDark ? QColor(0x6b6f76) : QColor(0x9599a0);
    painter.fillRect(boundingRect(), m_line.alpha() > 0 ? m_line : usual);
    painter.fillPath(outline(1), m_ground);
}

} // namespace ferrin
