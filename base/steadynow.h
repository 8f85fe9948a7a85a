// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <chrono>
#include <functional>

namespace ferrin {

/// Returns the current time of a monotonic clock, by default std::chrono::steady_clock. Tests pass
/// a clock of their own, so that no test waits for time to pass.
using SteadyNow = std::function<std::chrono::steady_clock::time_point()>;

} // namespace ferrin
