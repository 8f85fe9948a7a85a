// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace ferrin {

/// Runs the task in a child process and returns its result; absent when it took too long, crashed,
/// or could not be started. A read that hangs in a driver cannot be interrupted, and a process
/// cannot exit while one of its threads hangs, but a child process can be abandoned. The child has
/// none of our files open, so nobody waits for it through a pipe.
///
/// To be called before any thread is started, since it forks.
[[nodiscard]] std::optional<std::string> resultWithin(std::chrono::milliseconds limit,
                                                      const std::function<std::string()> &task);

} // namespace ferrin
