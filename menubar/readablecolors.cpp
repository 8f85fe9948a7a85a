// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/readablecolors.h"

#include "menubar/contrast.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace ferrin {

namespace {

/// How finely the lightness is searched: a colour that stands out from a dark window and carries
/// white text has little room.
constexpr int steps = 512;

/// The colour in another lightness, 0 to 1, as a screen of eight bits shows it.
QColor inLightness(const QColor &color, float lightness)
{
    const QColor hsl = color.toHsl();
    return QColor(QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF(), lightness).rgb());
}

/// The nearest lightness in which the colour will do.
template <typename Condition>
std::optional<QColor> nearest(const QColor &wish, const Condition &willDo)
{
    if (const QColor shown(wish.rgb()); willDo(shown))
        return shown;
    const float start = wish.lightnessF();
    for (int step = 1; step <= steps; ++step) {
        const float distance = float(step) / steps;
        for (const float lightness : { start - distance, start + distance }) {
            if (lightness < 0 || lightness > 1)
                continue;
            const QColor color = inLightness(wish, lightness);
            if (willDo(color))
                return color;
        }
    }
    return std::nullopt;
}

bool standsOut(const QColor &color, const QList<QColor> &grounds, double least)
{
    return std::ranges::all_of(
        grounds, [&](const QColor &ground) { return contrast(color, ground) >= least; });
}

float distance(const QColor &one, const QColor &other)
{
    return std::abs(one.lightnessF() - other.lightnessF());
}

} // namespace

QColor readableColor(const QColor &wish, const QList<QColor> &grounds, double least)
{
    const auto willDo = [&](const QColor &color) { return standsOut(color, grounds, least); };
    const QColor better = grounds.isEmpty() ? wish : blackOrWhiteOn(grounds.first());
    return nearest(wish, willDo).value_or(better);
}

QColor prominentColor(const QColor &wish, const QList<QColor> &grounds, double least)
{
    constexpr double usualForText = 4.5;
    const double apart = leastContrast * std::max(1.0, least / usualForText);
    const auto nearestWith = [&](const QColor &text) {
        return nearest(wish, [&](const QColor &color) {
            return contrast(text, color) >= least && standsOut(color, grounds, apart);
        });
    };
    const std::optional<QColor> underWhite = nearestWith(Qt::white);
    const std::optional<QColor> underBlack = nearestWith(Qt::black);
    if (!underWhite || !underBlack)
        return underWhite.value_or(underBlack.value_or(wish));
    // How much darker a colour may become before black text does it more justice.
    constexpr float preference = 0.12F;
    const bool isWhiteNear
        = distance(wish, *underWhite) <= distance(wish, *underBlack) + preference;
    return isWhiteNear ? *underWhite : *underBlack;
}

QColor whiteOrBlackOn(const QColor &ground, double least)
{
    return contrast(Qt::white, ground) >= least ? Qt::white : Qt::black;
}

QColor colorInHueOf(const QColor &accent, const QColor &own)
{
    if (!accent.isValid())
        return own;
    const QColor hue = accent.toHsl();
    const float vividness = std::min(hue.hslSaturationF(), own.toHsl().hslSaturationF());
    const QColor tint = QColor::fromHslF(hue.hslHueF(), vividness, own.lightnessF());
    // Contrast with black grows with the lightness.
    const double brightness = contrast(Qt::black, own);
    float low = 0;
    float high = 1;
    for (int halving = 0; halving < 12; ++halving) {
        const float middle = (low + high) / 2;
        (contrast(Qt::black, inLightness(tint, middle)) < brightness ? low : high) = middle;
    }
    return inLightness(tint, high);
}

} // namespace ferrin
