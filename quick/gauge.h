// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/painteditem.h"

#include <QColor>

namespace ferrin {

/// A share of a whole as an open ring: three quarters of a circle, its gap at the bottom, that fill
/// clockwise. The filled part shows as much of the gradient as it covers; the rest is a faint
/// track. Invisible to screen readers: its user also gives the figure as text.
class Gauge : public ferrin::PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// 0 to 1; clamped.
    Q_PROPERTY(qreal value READ value WRITE setValue NOTIFY valueChanged)
    /// The gradient's colours, evenly spaced from the empty end to the full one; at least two.
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY colorsChanged)
    Q_PROPERTY(QColor trackColor READ trackColor WRITE setTrackColor NOTIFY trackColorChanged)

public:
    /// Logical pixels: the frame that the ring is drawn for.
    static constexpr qreal frame = 28;

    explicit Gauge(QQuickItem *parent = nullptr);

    [[nodiscard]] qreal value() const noexcept { return m_value; }
    void setValue(qreal value);
    [[nodiscard]] QList<QColor> colors() const { return m_colors; }
    void setColors(const QList<QColor> &colors);
    [[nodiscard]] QColor trackColor() const { return m_trackColor; }
    void setTrackColor(const QColor &color);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void valueChanged();
    void colorsChanged();
    void trackColorChanged();

private:
    qreal m_value = 0;
    QList<QColor> m_colors { Qt::black, Qt::black };
    QColor m_trackColor = Qt::lightGray;
};

} // namespace ferrin
