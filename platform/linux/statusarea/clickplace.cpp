// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/clickplace.h"

#include <algorithm>

namespace ferrin {

namespace {

// Some docks reserve a window for more than their bar: for icons that grow, for their menus.
bool isPanel(const QRect &dock, const QRect &screen)
{
    constexpr int thickest = 4;
    const int thickness = std::min(dock.width(), dock.height());
    return thickness * thickest <= std::min(screen.width(), screen.height());
}

} // namespace

QRect logicalRect(const QRect &device, const ScaledScreen &screen)
{
    const QPointF corner = screen.geometry.topLeft();
    const QPointF topLeft = corner + (device.topLeft() - corner) / screen.ratio;
    return QRectF(topLeft, device.size().toSizeF() / screen.ratio).toAlignedRect();
}

ItemPlace placeOfClick(QPoint pointer, const QRect &dock, const ScaledScreen &screen)
{
    const QRect spot(pointer, QSize(1, 1));
    const QRect panel = logicalRect(dock, screen).intersected(screen.geometry);
    if (dock.isEmpty() || !panel.contains(pointer) || !isPanel(panel, screen.geometry))
        return { .item = spot };
    return { .item = spot, .panel = panel };
}

} // namespace ferrin
