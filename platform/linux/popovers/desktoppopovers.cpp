// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/popovers/desktoppopovers.h"

#include "platform/linux/layers/waylandpopoverdesktop.h"
#include "platform/linux/layers/waylandpresswatcher.h"
#include "platform/linux/x11/x11popoverdesktop.h"
#include "platform/linux/x11/x11presswatcher.h"

#include <QGuiApplication>

namespace ferrin {

namespace {

bool isWayland()
{
    return QGuiApplication::platformName().startsWith(u"wayland");
}

} // namespace

std::unique_ptr<PopoverDesktop> makePopoverDesktop()
{
    if (isWayland())
        return std::make_unique<WaylandPopoverDesktop>();
    return std::make_unique<X11PopoverDesktop>();
}

std::unique_ptr<PressWatcher> makePressWatcher()
{
    if (isWayland())
        return std::make_unique<WaylandPressWatcher>();
    return std::make_unique<X11PressWatcher>();
}

} // namespace ferrin
