// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>

#include <optional>

namespace ferrin {

/// What graphics and large text need at least, by the Web Content Accessibility Guidelines.
constexpr double leastContrast = 3;

/// The contrast of two opaque colours by the same guidelines, from 1 to 21.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// Whether black reads better on the colour than white does.
[[nodiscard]] bool isLight(const QColor &color);

/// The one of black and white that reads better on a ground.
[[nodiscard]] QColor blackOrWhiteOn(const QColor &ground);

/// The colour to write in on a ground, given what others write in there: theirs, or the better of
/// black and white where it does not read. Either may be unknown; a ground that shows more of what
/// lies below than of itself is.
[[nodiscard]] std::optional<QColor> readableText(const std::optional<QColor> &text,
                                                 const std::optional<QColor> &ground);

} // namespace ferrin
