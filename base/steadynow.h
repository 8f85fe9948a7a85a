// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <chrono>
#include <functional>

namespace ferrin {

/// Tells the time by which durations are measured. Owned by whoever measures; a test hands in its
/// own, so that nothing waits for seconds to pass.
using SteadyNow = std::function<std::chrono::steady_clock::time_point()>;

} // namespace ferrin
