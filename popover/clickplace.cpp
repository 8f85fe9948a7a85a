// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/clickplace.h"

#include <algorithm>
#include <array>

namespace ferrin {

namespace {

// Some docks reserve a window for more than their bar: for icons that grow, for their menus.
bool isPanel(const QRect &dock, const QRect &screen)
{
    constexpr int thickest = 4;
    const int thickness = std::min(dock.width(), dock.height());
    return thickness * thickest <= std::min(screen.width(), screen.height());
}

ItemPlace placeIn(const QRect &dock, const QRect &item, const ScaledScreen &screen)
{
    const QRect panel = logicalRect(dock, screen).intersected(screen.geometry);
    if (dock.isEmpty() || !panel.contains(item.center()) || !isPanel(panel, screen.geometry))
        return { .item = item };
    return { .item = item, .panel = panel };
}

} // namespace

QRect logicalRect(const QRect &device, const ScaledScreen &screen)
{
    const QPointF corner = screen.geometry.topLeft();
    const QPointF topLeft = corner + (device.topLeft() - corner) / screen.ratio;
    return QRectF(topLeft, device.size().toSizeF() / screen.ratio).toAlignedRect();
}

QPoint devicePoint(QPoint logical, const ScaledScreen &screen)
{
    const QPointF corner = screen.geometry.topLeft();
    return (corner + (logical - corner) * screen.ratio).toPoint();
}

ItemPlace placeOfClick(QPoint pointer, const QRect &dock, const ScaledScreen &screen)
{
    return placeIn(dock, QRect(pointer, QSize(1, 1)), screen);
}

ItemPlace placeAtEdge(QPoint pointer, const QRect &screen)
{
    const std::array distances { pointer.y() - screen.top(), screen.bottom() - pointer.y(),
                                 pointer.x() - screen.left(), screen.right() - pointer.x() };
    const auto nearest = std::ranges::min_element(distances);
    if (*nearest < thickestPanel) {
        const std::array<QPoint, 4> edges { QPoint(pointer.x(), screen.top()),
                                            QPoint(pointer.x(), screen.bottom()),
                                            QPoint(screen.left(), pointer.y()),
                                            QPoint(screen.right(), pointer.y()) };
        pointer = edges[size_t(nearest - distances.begin())];
    }
    return { .item = QRect(pointer, QSize(1, 1)) };
}

ItemPlace placeOfItem(const QRect &item, const QRect &dock, const ScaledScreen &screen)
{
    return placeIn(dock, logicalRect(item, screen), screen);
}

} // namespace ferrin
