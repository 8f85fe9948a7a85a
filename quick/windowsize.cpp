// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/windowsize.h"

#include <QQuickItem>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

// Window managers tell the height of the title bar only when the window is shown.
constexpr int titleBar = 40;

/// Moves a window as little as it needs to lie within this area, its title bar included.
void keepWithin(QWindow &window, const QSize &size, const QRect &area)
{
    const QPoint last = area.bottomRight() - QPoint(size.width(), size.height()) + QPoint(1, 1);
    const QPoint first(area.left(), area.top() + titleBar);
    window.setPosition(std::max(first.x(), std::min(window.x(), last.x())),
                       std::max(first.y(), std::min(window.y(), last.y())));
}

} // namespace

QSize windowSizeFor(const QQuickItem &root, const QScreen &screen)
{
    const QSize wanted(int(std::ceil(root.implicitWidth())), int(std::ceil(root.implicitHeight())));
    return wanted.boundedTo(screen.availableSize() - QSize(0, titleBar));
}

void fitWindow(QWindow &window, const QQuickItem &root)
{
    const QSize size = windowSizeFor(root, *window.screen());
    window.setMinimumSize(size);
    window.setMaximumSize(size);
    if (window.isVisible() && window.size() != size)
        keepWithin(window, size, window.screen()->availableGeometry());
    window.resize(size);
}

} // namespace ferrin
