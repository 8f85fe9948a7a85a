// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/x11/x11window.h"

#include "platform/linux/x11/x11connection.h"

#include <QWindow>

#include <xcb/xcb.h>

namespace ferrin {

void makeDock(QWindow &window)
{
    const X11Connection x11;
    if (!x11)
        return;
    const quint32 type = x11.atom("_NET_WM_WINDOW_TYPE_DOCK");
    xcb_change_property(x11.get(), XCB_PROP_MODE_REPLACE, quint32(window.winId()),
                        x11.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    const quint32 allDesktops = 0xffffffff;
    xcb_change_property(x11.get(), XCB_PROP_MODE_REPLACE, quint32(window.winId()),
                        x11.atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, 32, 1, &allDesktops);
}

} // namespace ferrin
