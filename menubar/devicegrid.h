// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QPointF>

class QPainter;

namespace ferrin {

/// The device pixels below a painter that works in logical pixels. Painters of views are scaled and
/// moved, never turned.
class DeviceGrid
{
public:
    explicit DeviceGrid(const QPainter &painter);

    /// Device pixels a logical one.
    [[nodiscard]] qreal scale() const noexcept { return m_scale; }

    [[nodiscard]] QPointF toDevice(const QPointF &logical) const;
    [[nodiscard]] QPointF toLogical(const QPointF &device) const;

    /// The nearest place, in logical pixels, that lies on whole device pixels.
    [[nodiscard]] QPointF snapped(const QPointF &logical) const;

private:
    qreal m_scale = 1;
    QPointF m_origin;
};

/// While it lives, the painter counts in device pixels.
class DevicePixels
{
public:
    explicit DevicePixels(QPainter &painter);
    ~DevicePixels();
    DevicePixels(const DevicePixels &) = delete;
    DevicePixels &operator=(const DevicePixels &) = delete;

private:
    QPainter &m_painter;
};

} // namespace ferrin
