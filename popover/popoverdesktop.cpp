// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverdesktop.h"

#include <QWindow>

namespace ferrin {

void PopoverDesktop::place(QWindow &window, const QRect &frame)
{
    window.setGeometry(frame);
}

void PopoverDesktop::prepare(QWindow &) { }

void PopoverDesktop::focus(QWindow &window)
{
    window.requestActivate();
}

void PopoverDesktop::setTitleBarDark(QWindow &, bool) { }

void PopoverDesktop::setOutline(QWindow &, const QPainterPath &) { }

} // namespace ferrin
