// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/painteditem.h"

#include <QColor>

namespace ferrin {

/// The menu bar item's horizontal battery glyph inside a window, in one colour and 1.2 times as
/// large. Invisible to screen readers.
class BatteryGlyph : public ferrin::PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The charge that fills it, 0 to 100 percent.
    Q_PROPERTY(qreal percent READ percent WRITE setPercent NOTIFY percentChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit BatteryGlyph(QQuickItem *parent = nullptr);

    [[nodiscard]] qreal percent() const noexcept { return m_percent; }
    void setPercent(qreal percent);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void percentChanged();
    void colorChanged();

private:
    qreal m_percent = 0;
    QColor m_color = Qt::black;
};

} // namespace ferrin
