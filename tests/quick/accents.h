// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/applicationappearance.h"

#include <QColor>
#include <QList>

#include <optional>

namespace ferrin::test {

inline AccentColor shade(double hue, double saturation, double lightness)
{
    const QColor color = QColor::fromHslF(float(hue), float(saturation), float(lightness));
    return { color.redF(), color.greenF(), color.blueF() };
}

/// None, then those of every hue: pale, plain, dark and dull ones, and greys from black to white.
inline QList<std::optional<AccentColor>> accents()
{
    QList<std::optional<AccentColor>> all { std::nullopt };
    for (const double grey : { 0.0, 0.2, 0.5, 0.8, 1.0 })
        all.append(AccentColor { grey, grey, grey });
    for (int hue = 0; hue < 12; ++hue) {
        for (const double lightness : { 0.1, 0.3, 0.5, 0.7, 0.95 })
            all.append(shade(hue / 12.0, 1, lightness));
        all.append(shade(hue / 12.0, 0.2, 0.5));
    }
    return all;
}

} // namespace ferrin::test
