// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <optional>

namespace ferrin {

/// What a desktop's settings say of the size of texts; each absent where it says nothing.
struct TextSettings
{
    /// The interface font's size in points: KDE's, of which 10 is usual.
    std::optional<double> kdePoints {};
    /// That of GNOME and its kin, of which 11 is usual.
    std::optional<double> gnomePoints {};
    /// GNOME's "Large Text" and its finer steps.
    std::optional<double> gnomeFactor {};
};

/// How many times larger than usual texts are to be, 1 to 3. Below 1 nothing shrinks: the smallest
/// texts would be hard to read. `enlarged` is how far the display server enlarges everything
/// already: an X server's resolution includes GNOME's factor, so that it must not count twice.
[[nodiscard]] double textScaleOf(const TextSettings &settings, double enlarged = 1);

} // namespace ferrin
