// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

class QWindow;
struct wl_display;
struct wl_surface;

/// What Qt's Wayland platform makes, and gives out by private headers only, which tie a binary to
/// one version of Qt. It makes them by libwayland's functions, and two of these the program wraps:
/// the dynamic linker finds the program's before the library's.
namespace ferrin::qtsurfaces {

/// The connection to the compositor; null when none was made, as on X11.
[[nodiscard]] wl_display *display() noexcept;

/// Makes the platform's window anew, and returns its surface. Null when no surface was made. The
/// surface is Qt's, which destroys it with the platform's window, and when the window is hidden.
[[nodiscard]] wl_surface *recreate(QWindow &window);

} // namespace ferrin::qtsurfaces
