// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/popoverplacement.h"

#include <QMargins>
#include <QPainterPath>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace ferrin {

/// A popover's background: rounded corners, an optional arrow, a border that is visible on any
/// wallpaper, and the shadow around it. Its window sets the geometry; QML binds the colours.
class PopoverFrame : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor ground READ ground WRITE setGround NOTIFY groundChanged REQUIRED)
    Q_PROPERTY(bool isDark READ isDark WRITE setDark NOTIFY isDarkChanged REQUIRED)
    /// Of a border that is to be seen on the ground as well; transparent for the usual one.
    Q_PROPERTY(QColor line READ line WRITE setLine NOTIFY lineChanged)

public:
    static constexpr int radius = 12;
    /// How far the shadow reaches where it has room, an arrow's length included.
    static constexpr int shadowReach = 22;

    /// An arrow on the frame's side that faces away from `side`.
    struct Arrow
    {
        PopoverSide side = PopoverSide::Below;
        qreal along = 0;

        bool operator==(const Arrow &) const = default;
    };

    explicit PopoverFrame(QQuickItem *parent = nullptr);

    [[nodiscard]] const QColor &ground() const noexcept { return m_ground; }
    void setGround(const QColor &ground);
    [[nodiscard]] bool isDark() const noexcept { return m_isDark; }
    void setDark(bool isDark);
    [[nodiscard]] const QColor &line() const noexcept { return m_line; }
    void setLine(const QColor &line);

    /// The margins of the item around the frame, for shadow and arrow, in logical pixels. Without
    /// blending there is no shadow and no translucent pixel.
    void setFraming(const QMargins &margins, const std::optional<Arrow> &arrow, bool isBlended);

    /// Places the frame beside a part of its own scene, with an arrow to it and wholly inside
    /// `within`. Returns the position for content of this size, in item coordinates.
    Q_INVOKABLE QPointF standBeside(const QRectF &part, const QSizeF &content,
                                    const QRectF &within);

    /// The border's outer edge, in item coordinates.
    [[nodiscard]] QPainterPath outline() const { return outline(0); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void groundChanged();
    void isDarkChanged();
    void lineChanged();

private:
    /// A line that runs `inset` pixels inside the outline.
    [[nodiscard]] QPainterPath outline(qreal inset) const;
    void paintShadow(QPainter &painter) const;
    void paintBorder(QPainter &painter) const;
    void paintCutOut(QPainter &painter) const;

    QColor m_ground;
    bool m_isDark = false;
    QColor m_line = Qt::transparent;
    QMargins m_margins;
    std::optional<Arrow> m_arrow;
    bool m_isBlended = true;
};

} // namespace ferrin
