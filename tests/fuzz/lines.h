// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace ferrin::fuzz {

/// What the lines "KEY=VALUE" of an input are made of. A fuzzer with lines.cpp among its sources
/// changes its inputs by them: whole lines come, go and are repeated, keys and values are taken
/// from these words, and now and then bytes of a value change. Bytes that change at random would
/// mostly break the keys.
struct Words
{
    /// What a key begins with, up to its last slash: "BAT0/".
    std::span<const std::string_view> places;
    std::span<const std::string_view> keys;
    std::span<const std::string_view> values;
};

/// Each such fuzzer defines its own.
extern const Words knownWords;

/// The lines of an input.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

/// The key and the value of a line; a line without "=" is a key alone.
[[nodiscard]] std::pair<std::string_view, std::string_view> keyAndValue(std::string_view line);

} // namespace ferrin::fuzz
