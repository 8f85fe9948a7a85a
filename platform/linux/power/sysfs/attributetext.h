// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>
#include <string_view>

namespace ferrin {

/// Parsers for the bytes of an attribute. Pure functions; none of them accepts part of a damaged
/// text.

/// Without white space and NUL bytes at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// A decimal integer; absent when the text contains anything else, or the number does not fit.
[[nodiscard]] std::optional<qint64> numberOf(std::string_view text) noexcept;

/// An integer followed by exactly this unit, as in "20000mV".
[[nodiscard]] std::optional<qint64> numberWithUnit(std::string_view text,
                                                   std::string_view unit) noexcept;

/// The word in brackets, as PD in "C [PD] PD_PPS"; empty when there is none.
[[nodiscard]] std::string_view chosenWord(std::string_view text) noexcept;

/// A name that can be shown: printable characters only, up to the first byte that is not UTF-8.
/// Empty when nothing is left, or for a placeholder of the firmware ("Primary", "BAT", "<BATT>",
/// "To be filled by O.E.M.").
[[nodiscard]] QString nameOf(std::string_view text);

/// A serial number; empty when it is missing, all zeros or another placeholder.
[[nodiscard]] QString serialOf(std::string_view text);

} // namespace ferrin
