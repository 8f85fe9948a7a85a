// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <optional>
#include <string_view>

namespace ferrin {

/// What the bytes of an attribute say. Pure functions; none of them takes part of a damaged text
/// for the whole.

/// Without white space and NUL bytes at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// A decimal integer that is the whole text; absent when it is anything else or does not fit.
[[nodiscard]] std::optional<qint64> numberOf(std::string_view text) noexcept;

/// An integer followed by exactly this unit, as in "20000mV".
[[nodiscard]] std::optional<qint64> numberWithUnit(std::string_view text,
                                                   std::string_view unit) noexcept;

/// The word in brackets of a choice such as "C [PD] PD_PPS"; empty when none is.
[[nodiscard]] std::string_view chosenWord(std::string_view text) noexcept;

/// A name for people: printable characters only, cut where the bytes stop being UTF-8; empty when
/// nothing is left or when it is one of the placeholders that firmware ships ("Primary", "BAT",
/// "1",
/// "<BATT>", "To be filled by O.E.M.").
[[nodiscard]] QString nameOf(std::string_view text);

/// A serial number; empty for nothing, only zeros, or another placeholder.
[[nodiscard]] QString serialOf(std::string_view text);

} // namespace ferrin
