// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/batteryglyph.h"

#include "menubar/glyphs.h"

#include <QPainter>

#include <utility>

namespace ferrin {

namespace {

constexpr qreal enlargement = 1.2;

AnyView glyphOf(qreal percent, const QColor &color)
{
    return HorzBattery2View { .percent = percent,
                              .style = BatteryStyle::black,
                              .border = HorzBatt2BorderThickness::mid,
                              .borderColor = color,
                              .insideColor = color };
}

} // namespace

BatteryGlyph::BatteryGlyph(QQuickItem *parent)
    : PaintedItem(parent)
{
    const QSizeF size = glyphOf(m_percent, m_color).idealSize({}) * enlargement;
    setImplicitSize(size.width(), size.height());
}

void BatteryGlyph::setPercent(qreal percent)
{
    if (std::exchange(m_percent, percent) == percent)
        return;
    update();
    Q_EMIT percentChanged();
}

void BatteryGlyph::setColor(const QColor &color)
{
    if (std::exchange(m_color, color) == color)
        return;
    update();
    Q_EMIT colorChanged();
}

void BatteryGlyph::paint(QPainter *painter)
{
    const QSizeF size = boundingRect().size() / enlargement;
    painter->scale(enlargement, enlargement);
    glyphOf(m_percent, m_color).paint(*painter, QRectF(QPointF(), size), {});
}

} // namespace ferrin
