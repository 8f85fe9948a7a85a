// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

class QPainterPath;
class QRect;
class QWindow;

namespace ferrin {

/// What a popover asks of the desktop beyond what a window can say of itself. This base does what
/// is right wherever windows are always blended and listed by their kind, as on Wayland; a platform
/// that knows better derives from it. Outlives the windows that it has dressed.
class PopoverDesktop
{
public:
    PopoverDesktop() = default;
    virtual ~PopoverDesktop() = default;
    Q_DISABLE_COPY_MOVE(PopoverDesktop)

    /// Whether a half-transparent pixel shows what is behind the window.
    [[nodiscard]] virtual bool blends() const { return true; }

    /// Call for every place that the window gets; in the desktop's logical pixels.
    virtual void place(QWindow &window, const QRect &frame);

    /// Call once, after the window was created and before it is shown: no list of windows will have
    /// it, and it stays above the others.
    virtual void prepare(QWindow &window);

    /// Call when the window has been shown: the keyboard is its own.
    virtual void focus(QWindow &window);

    /// Presses around `outline` are not the window's; where nothing is blended, it ends there too.
    /// In the window's logical pixels. Call again when either has changed.
    virtual void setOutline(QWindow &window, const QPainterPath &outline);
};

} // namespace ferrin
