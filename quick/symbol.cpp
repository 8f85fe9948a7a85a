// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/symbol.h"

#include "menubar/templateimageview.h"

#include <utility>

namespace ferrin {

Symbol::Symbol(QQuickItem *parent)
    : PaintedItem(parent)
{
}

void Symbol::setName(const QString &name)
{
    if (std::exchange(m_name, name) != name)
        measure();
}

void Symbol::setSize(qreal size)
{
    if (std::exchange(m_size, size) != size)
        measure();
}

void Symbol::setColor(const QColor &color)
{
    if (std::exchange(m_color, color) == color)
        return;
    update();
    Q_EMIT changed();
}

void Symbol::paint(QPainter *painter)
{
    const TemplateImageView view { .name = m_name, .height = m_size, .color = m_color };
    view.paint(*painter, boundingRect(), {});
}

void Symbol::measure()
{
    const QSizeF size = TemplateImageView { .name = m_name, .height = m_size }.idealSize({});
    setImplicitSize(size.width(), size.height());
    update();
    Q_EMIT changed();
}

} // namespace ferrin
