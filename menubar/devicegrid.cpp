// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/devicegrid.h"

#include <QPainter>
#include <QTransform>

#include <cmath>

namespace ferrin {

DeviceGrid::DeviceGrid(const QPainter &painter)
    : m_scale(painter.deviceTransform().m11())
    , m_origin(painter.deviceTransform().dx(), painter.deviceTransform().dy())
{
}

QPointF DeviceGrid::toDevice(const QPointF &logical) const
{
    return logical * m_scale + m_origin;
}

QPointF DeviceGrid::toLogical(const QPointF &device) const
{
    return (device - m_origin) / m_scale;
}

QPointF DeviceGrid::snapped(const QPointF &logical) const
{
    const QPointF device = toDevice(logical);
    // Halves always go the same way, so that neighbours at the same height stay level.
    return toLogical({ std::floor(device.x() + 0.5), std::floor(device.y() + 0.5) });
}

DevicePixels::DevicePixels(QPainter &painter)
    : m_painter(painter)
{
    m_painter.save();
    m_painter.resetTransform();
    // On a device with a pixel ratio of its own that transform counts in the device's logical
    // pixels.
    const QTransform rest = m_painter.deviceTransform();
    m_painter.setTransform(rest.inverted());
}

DevicePixels::~DevicePixels()
{
    m_painter.restore();
}

} // namespace ferrin
