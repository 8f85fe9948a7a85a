// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace ferrin::test {

/// Runs the function in a child process and returns the line with which it stopped that process;
/// absent when the process did not stop, or stopped without a line.
[[nodiscard]] std::optional<QString> lastWords(const std::function<void()> &deed);

} // namespace ferrin::test
