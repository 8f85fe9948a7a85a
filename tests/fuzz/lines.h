// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ferrin::fuzz {

/// Inputs that are texts of lines "KEY=VALUE", and how they are changed: whole lines come, go and
/// are repeated, keys and values are taken from the words that the program knows, and now and then
/// bytes of a value change. Bytes that change at random would mostly break the keys.
struct Words
{
    /// What a key begins with, up to its last slash: "BAT0/".
    std::span<const std::string_view> places;
    std::span<const std::string_view> keys;
    std::span<const std::string_view> values;
};

/// The lines of an input.
[[nodiscard]] std::vector<std::string_view> linesOf(std::string_view text);

/// The key and the value of a line; a line without "=" is a key alone.
[[nodiscard]] std::pair<std::string_view, std::string_view> keyAndValue(std::string_view line);

/// Changes the input in place and returns its new size, at most `greatest`.
std::size_t changeLines(std::uint8_t *data, std::size_t size, std::size_t greatest, unsigned seed,
                        const Words &words);

} // namespace ferrin::fuzz
