// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "app/windows.h"

namespace ferrin {

/// Loads the module of the windows beside the program and makes its windows; null with one log line
/// when the module is missing or not ours.
[[nodiscard]] std::unique_ptr<Windows> loadWindows(const WindowsPlatform &platform);

} // namespace ferrin
