// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/painteditem.h"

#include <QColor>
#include <QtQml/qqmlregistration.h>

namespace ferrin {

/// A rectangle with round corners and, if wanted, a border inside of its edge. Unlike the toolkit's
/// own it stays sharp in a scaled scene; its straight edges lie on whole pixels of the screen.
class RoundedRect : public ferrin::PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    /// The colour to which it fades from `color` at the top; invalid for one colour.
    Q_PROPERTY(QColor endColor READ endColor WRITE setEndColor NOTIFY changed)
    /// Where that colour is reached: a share of the height, up to 1 for the bottom.
    Q_PROPERTY(qreal endsAt READ endsAt WRITE setEndsAt NOTIFY changed)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY changed)
    /// Logical pixels; 0 for none, else at least one pixel of the screen.
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth NOTIFY changed)
    /// Logical pixels, of the outer edge; at most half of the shorter side is used.
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY changed)

public:
    using PaintedItem::PaintedItem;

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color) { set(m_color, color); }
    [[nodiscard]] QColor endColor() const { return m_endColor; }
    void setEndColor(const QColor &color) { set(m_endColor, color); }
    [[nodiscard]] qreal endsAt() const { return m_endsAt; }
    void setEndsAt(qreal share) { set(m_endsAt, share); }
    [[nodiscard]] QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color) { set(m_borderColor, color); }
    [[nodiscard]] qreal borderWidth() const { return m_borderWidth; }
    void setBorderWidth(qreal width) { set(m_borderWidth, width); }
    [[nodiscard]] qreal radius() const { return m_radius; }
    void setRadius(qreal radius) { set(m_radius, radius); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    template <typename Value>
    void set(Value &member, const Value &value)
    {
        if (member == value)
            return;
        member = value;
        update();
        Q_EMIT changed();
    }
    [[nodiscard]] QBrush fill(const QRectF &area) const;

    QColor m_color = Qt::white;
    QColor m_endColor;
    qreal m_endsAt = 1;
    QColor m_borderColor = Qt::black;
    qreal m_borderWidth = 0;
    qreal m_radius = 0;
};

} // namespace ferrin
