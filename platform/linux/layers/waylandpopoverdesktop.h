// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/layeredwindows.h"
#include "popover/popoverdesktop.h"

namespace ferrin {

/// Popovers on Wayland: surfaces of the desktop's topmost layer, off the edges that they are
/// nearest to and off the panels there; what belongs to one of them is a part of it, and so above
/// it. Where the compositor has no layers they are windows like any other.
class WaylandPopoverDesktop final : public PopoverDesktop
{
public:
    /// Only the compositor knows where they stand.
    [[nodiscard]] bool placesWindows() const override { return false; }
    void place(QWindow &window, const QRect &frame) override;
    void prepare(QWindow &window) override;
    /// For windows that are shown afterwards: where the compositor draws no title bars, Qt does.
    void setTitleBarDark(QWindow &window, bool isDark) override;
    void setOutline(QWindow &window, const QPainterPath &outline) override;

private:
    LayeredWindows m_layers;
};

} // namespace ferrin
