// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QRect>

namespace ferrin {

/// The dock window (a panel) under the pointer, in the X server's own pixels; null where there is
/// none, and where the program does not run on X11.
[[nodiscard]] QRect dockUnderPointer();

} // namespace ferrin
