// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <map>
#include <optional>
#include <string>

namespace ferrin::fuzz {

/// The supplies as they lie in the folder: by supply, then by attribute.
using Supplies = std::map<std::string, std::map<std::string, std::string>>;

/// What such a folder says so plainly that it must be shown: one battery of the machine whose
/// `status`, `capacity` and `voltage_now` are what the kernel documents, with no adapter beside it
/// or one that agrees. Each member is absent where the folder is not that plain.
struct PlainWords
{
    /// 1...100.
    std::optional<int> charge;
    std::optional<bool> isExternal;
    std::optional<bool> isCharging;
};

[[nodiscard]] PlainWords plainWordsOf(const Supplies &supplies);

} // namespace ferrin::fuzz
