// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/qtsurfaces.h"

#include <QWindow>

#include <cstring>
#include <dlfcn.h>
#include <utility>
#include <wayland-client.h>

namespace {

wl_display *lastDisplay = nullptr;
/// Where a surface that this thread makes is to be noted; null while nobody asks.
thread_local wl_surface **newSurface = nullptr;

template <typename Function>
Function *inLibrary(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

Q_DECL_EXPORT wl_display *wl_display_connect(const char *name)
{
    static auto *const connect = inLibrary(&wl_display_connect, "wl_display_connect");
    wl_display *const display = connect(name);
    if (display)
        lastDisplay = display;
    return display;
}

/// Whoever makes a surface listens to it at once.
Q_DECL_EXPORT int wl_proxy_add_listener(wl_proxy *proxy, void (**implementation)(), void *data)
{
    static auto *const addListener = inLibrary(&wl_proxy_add_listener, "wl_proxy_add_listener");
    if (newSurface && !*newSurface
        && std::strcmp(wl_proxy_get_class(proxy), wl_surface_interface.name) == 0)
        *newSurface = reinterpret_cast<wl_surface *>(proxy);
    return addListener(proxy, implementation, data);
}

} // extern "C"

namespace ferrin {

wl_display *qtsurfaces::display() noexcept
{
    return lastDisplay;
}

wl_surface *qtsurfaces::recreate(QWindow &window)
{
    QScreen *const screen = window.screen();
    wl_surface *surface = nullptr;
    window.destroy();
    wl_surface **const before = std::exchange(newSurface, &surface);
    window.create();
    newSurface = before;
    // A window that is made again begins on the first screen.
    window.setScreen(screen);
    return surface;
}

} // namespace ferrin
