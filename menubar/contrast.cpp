// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/contrast.h"

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + 0.05) / (darker + 0.05);
}

bool isLight(const QColor &color)
{
    return contrast(Qt::black, color) > contrast(Qt::white, color);
}

QColor blackOrWhiteOn(const QColor &ground)
{
    return isLight(ground) ? Qt::black : Qt::white;
}

std::optional<QColor> readableText(const std::optional<QColor> &text,
                                   const std::optional<QColor> &ground)
{
    if (!ground || ground->alphaF() < 0.5f)
        return text;
    if (text && contrast(*text, *ground) >= leastContrast)
        return text;
    return blackOrWhiteOn(*ground);
}

} // namespace ferrin
