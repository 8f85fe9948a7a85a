// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemviews.h"

#include "menubar/iconview.h"
#include "menubar/stackviews.h"
#include "menubar/templateimageview.h"
#include "menubar/textview.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr int oneLinePixelSize = 11;
constexpr int twoLinePixelSize = 9;

TextView textOf(const QString &text, int pixelSize)
{
    return { .text = text, .pixelSize = pixelSize };
}

RowView chargeRow(const QString &charge, int pixelSize)
{
    return { .spacing = 1,
             .children = { textOf(charge, pixelSize), textOf(u"%"_s, pixelSize) },
             .keepsOrder = true };
}

RowView besideIcon(qreal spacing, const AnyView &text, const AnyView &icon)
{
    return { .spacing = spacing, .children = { text, SpacerView {}, icon } };
}

} // namespace

AnyView MenuBarChargeView::body(const ViewContext &) const
{
    return chargeRow(charge, oneLinePixelSize);
}

AnyView MenuBarTimeView::body(const ViewContext &) const
{
    return textOf(time, oneLinePixelSize);
}

AnyView MenuBarIconView::body(const ViewContext &) const
{
    return icon;
}

AnyView MenuBarChargeTimeView::body(const ViewContext &) const
{
    return ColumnView {
        .children = { chargeRow(charge, twoLinePixelSize), textOf(time, twoLinePixelSize) },
    };
}

AnyView MenuBarTimeIconView::body(const ViewContext &) const
{
    return besideIcon(-2, MenuBarTimeView { time }, icon);
}

AnyView MenuBarChargeIconView::body(const ViewContext &) const
{
    return besideIcon(-2, MenuBarChargeView { charge }, icon);
}

AnyView MenuBarChargeTimeIconView::body(const ViewContext &) const
{
    return besideIcon(-1, MenuBarChargeTimeView { charge, time }, icon);
}

AnyView MenuBarBatteryFaultView::body(const ViewContext &) const
{
    return OverlayView {
        .layers
        = { IconView { .icon = Icon::battery1V, .charge = charge, .status = status },
            TemplateImageView { .name = u"xmark"_s, .height = symbolHeight, .opacity = 0.875 } },
    };
}

} // namespace ferrin
