// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/iconview.h"

#include "menubar/glyphdrawing.h"
#include "menubar/glyphs.h"
#include "menubar/templateimageview.h"

namespace ferrin {

namespace {

AnyView glyph(const GlyphDrawing &drawing, double percent, const std::optional<QColor> &inside)
{
    switch (drawing.shape) {
    case GlyphShape::Upright1:
        return VertBattery1View { .percent = percent, .insideColor = inside };
    case GlyphShape::Lying1:
        return HorzBattery1View { .percent = percent, .insideColor = inside };
    case GlyphShape::Lying1WithBolt:
        return HorzBattery1WithBoltView { .percent = percent };
    case GlyphShape::Upright2:
        return VertBattery2View { .percent = percent,
                                  .style = drawing.style,
                                  .border = VertBatt2BorderThickness::mid,
                                  .insideColor = inside };
    case GlyphShape::Lying2:
        return HorzBattery2View { .percent = percent,
                                  .style = drawing.style,
                                  .border = HorzBatt2BorderThickness::mid,
                                  .insideColor = inside };
    case GlyphShape::Lying2WithBolt:
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

    return glyph(drawingOf(icon), charge,
                 isNearlyEmpty(charge, status) ? std::optional(context.red) : std::nullopt);
}

} // namespace ferrin
