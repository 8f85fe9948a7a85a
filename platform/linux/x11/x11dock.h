// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>

namespace ferrin {

/// The dock window (a panel) under the pointer, in the X server's own pixels; null where there is
/// none, and where the program does not run on X11.
[[nodiscard]] QRect dockUnderPointer();

/// The same of the dock that this window is in.
[[nodiscard]] QRect dockAround(quint32 window);

/// How thick the dock windows of the session are, in the X server's own pixels.
[[nodiscard]] QList<int> dockThicknesses();

/// The class of that dock, empty where there is none.
[[nodiscard]] QByteArray classOfDockAround(quint32 window);

/// Where a window is on the screen, in the X server's own pixels; null when it is gone.
[[nodiscard]] QRect windowBounds(quint32 window);

} // namespace ferrin
