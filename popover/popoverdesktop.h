// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

class QPainterPath;
class QRect;
class QWindow;

namespace ferrin {

/// What a popover, and the other windows, need of the desktop beyond what QWindow offers. This base
/// suits platforms that always blend windows and list them by their type; other platforms derive
/// from it. Outlives the windows that it has prepared.
class PopoverDesktop
{
public:
    PopoverDesktop() = default;
    virtual ~PopoverDesktop() = default;
    Q_DISABLE_COPY_MOVE(PopoverDesktop)

    /// Whether a half-transparent pixel shows what is behind the window.
    [[nodiscard]] virtual bool blends() const { return true; }

    /// Whether a place that an ordinary window asks for is where it then stands.
    [[nodiscard]] virtual bool placesWindows() const { return true; }

    /// Call for every place that the window gets; in the desktop's logical pixels.
    virtual void place(QWindow &window, const QRect &frame);

    /// Call once, after the window was created and before it is shown: keeps it off task bars and
    /// above other windows.
    virtual void prepare(QWindow &window);

    /// Call when the window has been shown: gives it the keyboard focus.
    virtual void focus(QWindow &window);

    /// Whether the title bar that the desktop gives to the window suits dark content. Call again
    /// when the content has changed; the window has been created.
    virtual void setTitleBarDark(QWindow &window, bool isDark);

    /// Presses outside of `outline` go to the window below; where nothing is blended, the window is
    /// cut along it too. In the window's logical pixels. Call again when either has changed.
    virtual void setOutline(QWindow &window, const QPainterPath &outline);
};

} // namespace ferrin
