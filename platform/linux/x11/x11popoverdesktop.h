// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/x11/x11connection.h"
#include "popover/popoverdesktop.h"

namespace ferrin {

/// Popovers on X11: in no task bar nor pager, focused although no key or button of ours was
/// pressed, deaf around their outline, and cut along it where no compositing manager runs. Title
/// bars are dark by the hint of GTK's programs, which the window managers of GNOME, Xfce, MATE and
/// Cinnamon heed. On anything else it is the base.
class X11PopoverDesktop final : public PopoverDesktop
{
public:
    [[nodiscard]] bool blends() const override;
    void prepare(QWindow &window) override;
    void focus(QWindow &window) override;
    void setTitleBarDark(QWindow &window, bool isDark) override;
    void setOutline(QWindow &window, const QPainterPath &outline) override;

private:
    void insistOnPlace(const QWindow &window) const;

    X11Connection m_x11;
};

} // namespace ferrin
