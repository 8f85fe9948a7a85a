// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/icon.h"

#include <array>

namespace ferrin {

/// The shapes of the battery glyphs, of the first and of the second generation.
enum class GlyphShape { Upright1, Lying1, Lying1WithBolt, Upright2, Lying2, Lying2WithBolt };

/// How a glyph is drawn, whatever its size and charge.
struct GlyphDrawing
{
    GlyphShape shape;
    BatteryStyle style;
};

/// The drawing of a glyph; the icon must be one.
[[nodiscard]] constexpr GlyphDrawing drawingOf(Icon glyph)
{
    // In the order of their icons.
    constexpr std::array drawings {
        GlyphDrawing { GlyphShape::Upright1, BatteryStyle::normal },
        GlyphDrawing { GlyphShape::Lying1, BatteryStyle::normal },
        GlyphDrawing { GlyphShape::Lying1WithBolt, BatteryStyle::normal },
        GlyphDrawing { GlyphShape::Upright2, BatteryStyle::normal },
        GlyphDrawing { GlyphShape::Lying2, BatteryStyle::normal },
        GlyphDrawing { GlyphShape::Lying2WithBolt, BatteryStyle::normal },
        GlyphDrawing { GlyphShape::Upright2, BatteryStyle::inverted },
        GlyphDrawing { GlyphShape::Lying2, BatteryStyle::inverted },
        GlyphDrawing { GlyphShape::Lying2WithBolt, BatteryStyle::inverted },
        GlyphDrawing { GlyphShape::Upright2, BatteryStyle::black },
        GlyphDrawing { GlyphShape::Lying2, BatteryStyle::black },
        GlyphDrawing { GlyphShape::Lying2WithBolt, BatteryStyle::black },
    };
    static_assert(drawings.size() == std::size_t(Icon::battery2HBlackWithBolt) + 1);
    return drawings[std::size_t(glyph)];
}

[[nodiscard]] constexpr bool isUpright(Icon glyph)
{
    const GlyphShape shape = drawingOf(glyph).shape;
    return shape == GlyphShape::Upright1 || shape == GlyphShape::Upright2;
}

/// The glyph is drawn with a bolt over it; false for symbols.
[[nodiscard]] constexpr bool hasBolt(Icon icon)
{
    if (!isGlyph(icon))
        return false;
    const GlyphShape shape = drawingOf(icon).shape;
    return shape == GlyphShape::Lying1WithBolt || shape == GlyphShape::Lying2WithBolt;
}

} // namespace ferrin
