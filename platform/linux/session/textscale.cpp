// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/textscale.h"

#include <algorithm>

namespace ferrin {

namespace {

double fontScaleOf(const TextSettings &settings)
{
    constexpr double usualOnKde = 10;
    constexpr double usualOnGnome = 11;
    if (settings.kdePoints)
        return *settings.kdePoints / usualOnKde;
    return settings.gnomePoints.value_or(usualOnGnome) / usualOnGnome;
}

/// The part of GNOME's factor that the display server leaves to programs.
double remainingFactor(const TextSettings &settings, double enlarged)
{
    const double factor = settings.gnomeFactor.value_or(1);
    return enlarged > 1 ? std::max(1.0, factor / enlarged) : factor;
}

} // namespace

double textScaleOf(const TextSettings &settings, double enlarged)
{
    constexpr double most = 3;
    return std::clamp(fontScaleOf(settings) * remainingFactor(settings, enlarged), 1.0, most);
}

} // namespace ferrin
