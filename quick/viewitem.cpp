// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/viewitem.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace ferrin {

ViewItem::ViewItem(QQuickItem *parent)
    : PaintedItem(parent)
{
}

void ViewItem::setTextColor(const QColor &color)
{
    setContext({ .text = color, .red = m_context.red, .fontFamily = m_context.fontFamily });
}

void ViewItem::setRedColor(const QColor &color)
{
    setContext({ .text = m_context.text, .red = color, .fontFamily = m_context.fontFamily });
}

void ViewItem::setFontFamily(const QString &family)
{
    setContext({ .text = m_context.text, .red = m_context.red, .fontFamily = family });
}

void ViewItem::setView(const AnyView &view)
{
    if (m_view == view)
        return;
    m_view = view;
    measure();
}

void ViewItem::setContext(const ViewContext &context)
{
    if (std::exchange(m_context, context) == context)
        return;
    measure();
    Q_EMIT contextChanged();
}

void ViewItem::measure()
{
    const QSizeF size = m_view.idealSize(m_context);
    setImplicitSize(std::ceil(size.width()), std::ceil(size.height()));
    update();
}

void ViewItem::paint(QPainter *painter)
{
    QRectF bounds(QPointF(), m_view.idealSize(m_context));
    bounds.moveCenter(boundingRect().center());
    m_view.paint(*painter, bounds, m_context);
}

} // namespace ferrin
