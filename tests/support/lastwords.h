// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace ferrin::test {

/// Does the deed in a child process and answers the one line with which it stopped that process;
/// absent when the process outlived the deed, or died without a word.
[[nodiscard]] std::optional<QString> lastWords(const std::function<void()> &deed);

} // namespace ferrin::test
