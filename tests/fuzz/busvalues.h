// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QVariantList>

#include <string_view>

namespace ferrin::fuzz {

/// A value of D-Bus by its type's letter and its text: "u2", "d37.5", "btrue", "sBAT0", "o/a/path";
/// "a" is a list of two such strings, "v" a dictionary of one, and "e" a list of a menu's event
/// with that name. Invalid for any other letter.
[[nodiscard]] QVariant valueOf(std::string_view text);

/// The values that "|" separates; none for an empty text.
[[nodiscard]] QVariantList valuesOf(std::string_view text);

} // namespace ferrin::fuzz
