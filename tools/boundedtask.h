// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace ferrin {

/// What the task returns, if it does so in time. It runs in a process of its own: a read that hangs
/// in a driver can neither be interrupted nor can a process end while one of its threads is in it,
/// but a child can be left behind. The child holds none of our files, so that nobody waits for it
/// either.
///
/// Call it before there are threads. Absent when the task took too long, crashed, or could not be
/// started.
[[nodiscard]] std::optional<std::string> resultWithin(std::chrono::milliseconds limit,
                                                      const std::function<std::string()> &task);

} // namespace ferrin
