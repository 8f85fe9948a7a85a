// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/glyphs.h"

#include "menubar/fillview.h"
#include "menubar/stackviews.h"
#include "menubar/templateimageview.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal strong = 0.875;
constexpr qreal weak = 0.5;

struct Opacities
{
    qreal outline;
    qreal fill;
};

constexpr Opacities opacitiesOf(BatteryStyle style)
{
    switch (style) {
    case BatteryStyle::normal:
        return { weak, strong };
    case BatteryStyle::inverted:
        return { strong, weak };
    case BatteryStyle::black:
        return { strong, strong };
    }
    Q_UNREACHABLE();
}

TemplateImageView outlineOf(const QString &name, const std::optional<QColor> &color, qreal opacity)
{
    return { .name = name, .color = color, .opacity = opacity };
}

FillView uprightFill(double percent, const std::optional<QColor> &color, qreal opacity)
{
    return { .size = { 6, percent * 12 / 100 }, .color = color, .opacity = opacity };
}

/// The battery with a bolt standing in a gap that is cut out of it.
AnyView withBolt(AnyView battery, const QPointF &offset)
{
    const TemplateImageView mask { .name = u"customBoltMask"_s };
    const TemplateImageView bolt { .name = u"customBolt"_s, .opacity = strong };
    return OverlayView {
        .layers = { CutOutView { .content = std::move(battery),
                                 .mask = OffsetView { .content = mask, .offset = offset } },
                    OffsetView { .content = bolt, .offset = offset } },
    };
}

} // namespace

QString rawValue(VertBatt2BorderThickness thickness)
{
    switch (thickness) {
    case VertBatt2BorderThickness::min:
        return u"vertBatt2Border.100"_s;
    case VertBatt2BorderThickness::mid:
        return u"vertBatt2Border.125"_s;
    }
    Q_UNREACHABLE();
}

QString rawValue(HorzBatt2BorderThickness thickness)
{
    switch (thickness) {
    case HorzBatt2BorderThickness::min:
        return u"horzBatt2Border.100"_s;
    case HorzBatt2BorderThickness::mid:
        return u"horzBatt2Border.125"_s;
    case HorzBatt2BorderThickness::max:
        return u"horzBatt2Border.150"_s;
    }
    Q_UNREACHABLE();
}

AnyView VertBattery1View::body(const ViewContext &) const
{
    return OverlayView {
        .alignment = OverlayAlignment::Bottom,
        .layers = { outlineOf(u"vertBatt1Border"_s, borderColor, weak),
                    uprightFill(percent, insideColor, strong) },
    };
}

AnyView HorzBattery1View::body(const ViewContext &) const
{
    return OverlayView {
        .alignment = OverlayAlignment::Leading,
        .layers
        = { outlineOf(u"horzBatt1Border"_s, borderColor, weak),
            FillView {
                .size = { percent * 18 / 100, 8 }, .color = insideColor, .opacity = strong } },
    };
}

AnyView HorzBattery1WithBoltView::body(const ViewContext &) const
{
    return withBolt(HorzBattery1View { .percent = percent }, { 0, 0 });
}

AnyView VertBattery2View::body(const ViewContext &) const
{
    // The wall and the gap inside it: the fill meets the outline at the bottom of the room within.
    constexpr qreal wall = 2;
    const Opacities opacities = opacitiesOf(style);
    return PaddedView {
        .content = OverlayView {
            .alignment = OverlayAlignment::Bottom,
            .layers = { PaddedView { .content = outlineOf(rawValue(border), borderColor,
                                                          opacities.outline),
                                     .margins = { 0, -wall, 0, -wall } },
                        uprightFill(percent, insideColor, opacities.fill) },
        },
        .margins = { 0, wall, 0, wall },
    };
}

AnyView SizeForBorder::applied(const std::optional<QColor> &color, qreal opacity) const
{
    const qreal height = border == HorzBatt2BorderThickness::max ? 6 : 7;
    return OffsetView {
        .content
        = FillView { .size = { percent * 16 / 100, height }, .color = color, .opacity = opacity },
        .offset = { 2.5, 0 },
    };
}

AnyView HorzBattery2View::body(const ViewContext &) const
{
    const Opacities opacities = opacitiesOf(style);
    return OverlayView {
        .alignment = OverlayAlignment::Leading,
        .layers = { outlineOf(rawValue(border), borderColor, opacities.outline),
                    SizeForBorder { .percent = percent, .border = border }.applied(
                        insideColor, opacities.fill) },
    };
}

AnyView HorzBattery2WithBoltView::body(const ViewContext &) const
{
    return withBolt(HorzBattery2View { .percent = percent,
                                       .style = style,
                                       .border = HorzBatt2BorderThickness::mid },
                    { 1.0, -0.5 });
}

} // namespace ferrin
