// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QColor>

namespace ferrin {

/// What graphics and large text need at least, by the Web Content Accessibility Guidelines.
constexpr double leastContrast = 3;

/// The contrast of two opaque colours by the same guidelines, from 1 to 21.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

} // namespace ferrin
