// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/popoverplacement.h"

#include <algorithm>

namespace ferrin {

namespace {

/// Between the item and the popover.
constexpr int gap = 6;

int inside(int position, int length, int low, int high)
{
    return std::max(low, std::min(position, high - length));
}

} // namespace

QPoint popoverPosition(const QRect &item, const QSize &size, const QRect &available)
{
    const bool itemIsAbove = item.center().y() < available.center().y();
    const int x = item.center().x() - size.width() / 2;
    const int y = itemIsAbove ? item.bottom() + 1 + gap : item.top() - gap - size.height();
    return { inside(x, size.width(), available.left(), available.right() + 1),
             inside(y, size.height(), available.top(), available.bottom() + 1) };
}

} // namespace ferrin
