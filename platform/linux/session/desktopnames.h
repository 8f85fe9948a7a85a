// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QStringList>

namespace ferrin {

/// What the running desktop calls itself, the most particular name first: "ubuntu", "GNOME". Empty
/// where none is set.
[[nodiscard]] QStringList currentDesktopNames();

} // namespace ferrin
