// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/iconview.h"

#include "menubar/glyphs.h"
#include "menubar/templateimageview.h"

#include <array>

namespace ferrin {

namespace {

enum class Shape { Upright1, Lying1, Lying1WithBolt, Upright2, Lying2, Lying2WithBolt };

struct Drawing
{
    Shape shape;
    BatteryStyle style;
};

/// How the twelve glyphs are drawn, in the order of their icons.
constexpr std::array drawings {
    Drawing { Shape::Upright1, BatteryStyle::normal },
    Drawing { Shape::Lying1, BatteryStyle::normal },
    Drawing { Shape::Lying1WithBolt, BatteryStyle::normal },
    Drawing { Shape::Upright2, BatteryStyle::normal },
    Drawing { Shape::Lying2, BatteryStyle::normal },
    Drawing { Shape::Lying2WithBolt, BatteryStyle::normal },
    Drawing { Shape::Upright2, BatteryStyle::inverted },
    Drawing { Shape::Lying2, BatteryStyle::inverted },
    Drawing { Shape::Lying2WithBolt, BatteryStyle::inverted },
    Drawing { Shape::Upright2, BatteryStyle::black },
    Drawing { Shape::Lying2, BatteryStyle::black },
    Drawing { Shape::Lying2WithBolt, BatteryStyle::black },
};
static_assert(drawings.size() == std::size_t(Icon::battery2HBlackWithBolt) + 1);

AnyView glyph(const Drawing &drawing, double percent, const std::optional<QColor> &inside)
{
    switch (drawing.shape) {
    case Shape::Upright1:
        return VertBattery1View { .percent = percent, .insideColor = inside };
    case Shape::Lying1:
        return HorzBattery1View { .percent = percent, .insideColor = inside };
    case Shape::Lying1WithBolt:
        return HorzBattery1WithBoltView { .percent = percent };
    case Shape::Upright2:
        return VertBattery2View { .percent = percent,
                                  .style = drawing.style,
                                  .border = VertBatt2BorderThickness::mid,

                                  .insideColor = inside };
    case Shape::Lying2:
        return HorzBattery2View { .percent = percent,
                                  .style = drawing.style,
                                  .border = HorzBatt2BorderThickness::mid,

                                  .insideColor = inside };
    case Shape::Lying2WithBolt:
        return HorzBattery2WithBoltView { .percent = percent, .style = drawing.style };
    }
    Q_UNREACHABLE();
}

} // namespace

AnyView IconView::body(const ViewContext &context) const
{
    if (!isGlyph(icon))
        return TemplateImageView { .name = rawValue(icon),
                                   .height = symbolHeight,
                                   .opacity = 0.875 };

    return glyph(drawings[std::size_t(icon)], charge,
                 isNearlyEmpty(charge, status) ? std::optional(context.red) : std::nullopt);
}

} // namespace ferrin
