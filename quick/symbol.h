// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/painteditem.h"

#include <QColor>

namespace ferrin {

/// A symbol of the application's own artwork, in one colour. Its implicit height is `size`, and its
/// implicit width follows from the artwork; in a larger item it is centred. Invisible to screen
/// readers.
class Symbol : public ferrin::PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The artwork's name; nothing is shown if it is empty or unknown.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    /// Logical pixels, the height of the artwork.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name);
    [[nodiscard]] qreal size() const { return m_size; }
    void setSize(qreal size);
    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    void measure();

    QString m_name;
    qreal m_size = 16;
    QColor m_color = Qt::black;
};

} // namespace ferrin
