// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemform.h"

#include "menubar/fillview.h"
#include "menubar/glyphdrawing.h"
#include "menubar/squarebatteryview.h"
#include "menubar/squareitemview.h"
#include "menubar/stackviews.h"
#include "menubar/textview.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace ferrin {

namespace {

/// A view, the width of its picture in logical pixels, and how much of its own size it is given.
struct Form
{
    AnyView view;
    qreal width = 0;
    qreal zoom = 1;
};

// Hosts that take wide pictures set them side by side with nothing in between.
constexpr qreal sideAir = 2;

/// How much larger the view is on taller panels; the smaller text is a whole number of pixels high.
qreal zoomAt(int height)
{
    constexpr int usualHeight = 24;
    constexpr int smallText = 9;
    return std::max(1.0, std::floor(double(smallText) * height / usualHeight) / smallText);
}

Form wide(const ItemContent &content, int height, const ViewContext &context)
{
    const AnyView view = viewFor(content);
    const QSizeF ideal = view.idealSize(context);
    const qreal fitting = ideal.isEmpty() ? 1.0 : height / ideal.height();
    const qreal zoom = std::min(fitting, zoomAt(height));
    return { view, ideal.width() * zoom, zoom };
}

constexpr qreal lineHeight = 16;

AnyView lowIcon(const IconElement &icon, const ViewContext &context)
{
    AnyView view = viewFor(icon);
    const QSizeF ideal = view.idealSize(context);
    if (ideal.height() <= lineHeight)
        return view;
    return FittedView { .content = view, .size = ideal * (lineHeight / ideal.height()) };
}

Form oneLine(const ItemContent &content, int height, const ViewContext &context)
{
    constexpr int pixelSize = 12;
    RowView row { .spacing = 5, .children = {} };
    if (content.icon)
        row.children.push_back(lowIcon(*content.icon, context));
    if (content.charge)
        row.children.push_back(TextView { .text = *content.charge + u'%', .pixelSize = pixelSize });
    if (content.time)
        row.children.push_back(TextView { .text = *content.time, .pixelSize = pixelSize });
    const qreal zoom = height / lineHeight;
    return { row, row.idealSize(context).width() * zoom, zoom };
}

Form square(const ItemContent &content, int height)
{
    return { SquareItemView { content }, qreal(height) };
}

bool isOutlinedLyingBattery(Icon icon)
{
    if (!isGlyph(icon))
        return false;
    const GlyphShape shape = drawingOf(icon).shape;
    return shape == GlyphShape::Lying2 || shape == GlyphShape::Lying2WithBolt;
}

Form glyph(const ItemContent &content, int height)
{
    // Shrunk into a square its outline would be a blur, and the red of a low one a speck.
    if (content.icon && !content.icon->fault && isOutlinedLyingBattery(content.icon->icon))
        return { PaddedView {
                     .content
                     = SquareBatteryView { *content.icon, {}, hasBolt(content.icon->icon) },
                     .margins = QMarginsF(0, 3, 0, 3) * (height / 16.0) },
                 qreal(height) };
    const AnyView icon = content.icon ? viewFor(*content.icon) : AnyView();
    return { FittedView { .content = icon, .size = QSizeF(height, height) }, qreal(height) };
}

bool isSquare(ItemForm form)
{
    return form == ItemForm::Square || form == ItemForm::Glyph;
}

/// What the chip needs around the content, in logical pixels: at the ends of a row a little air, in
/// a square no more than its round corners take, on whole device pixels.
QMarginsF chipMargins(ItemForm form, int height, qreal scale)
{
    const qreal inset = std::max(1.0, std::round(height * scale * 1.5 / 22)) / scale;
    return isSquare(form) ? QMarginsF(inset, inset, inset, inset)
                          : QMarginsF(height * 0.25, 0, height * 0.25, 0);
}

void paintChip(QPainter &painter, const QRectF &bounds, const QColor &color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(smoothlyRoundedRect(bounds, bounds.height() * 0.18), color);
}

Form formOf(ItemForm form, const ItemContent &content, int height, const ViewContext &context)
{
    switch (form) {
    case ItemForm::Wide:
        return wide(content, height, context);
    case ItemForm::OneLine:
        return oneLine(content, height, context);
    case ItemForm::Square:
        return square(content, height);
    case ItemForm::Glyph:
        return glyph(content, height);
    }
    Q_UNREACHABLE();
}

bool hasChip(ItemForm form, const ItemContent &content, const ViewContext &context)
{
    return context.chip && (form != ItemForm::Glyph || content.icon);
}

/// The form with the air or the chip around it.
Form framed(ItemForm form, const ItemContent &content, int height, qreal scale,
            const ViewContext &context)
{
    Form picture = formOf(form, content, height, context);
    if (hasChip(form, content, context)) {
        const QMarginsF margins = chipMargins(form, height, scale);
        picture.view = PaddedView { .content = picture.view, .margins = margins / picture.zoom };
        picture.width += isSquare(form) ? 0 : margins.left() + margins.right();
    } else if (!isSquare(form)) {
        picture.view
            = PaddedView { .content = picture.view, .margins = { sideAir, 0, sideAir, 0 } };
        picture.width += 2 * sideAir * picture.zoom;
    }
    return picture;
}

} // namespace

qreal widthNeeded(ItemForm form, const ItemContent &content, int height, const ViewContext &context)
{
    return framed(form, content, height, 1, context).width;
}

QImage paintForm(ItemForm form, const ItemContent &content, int height, qreal scale,
                 const ViewContext &context, qreal leastWidth)
{
    Form picture = framed(form, content, height, scale, context);
    if (!isSquare(form))
        picture.width = std::max(picture.width, leastWidth);
    const qreal deviceScale = scale * picture.zoom;
    // Where logical pixels are no whole ones, a glyph may move by half a pixel to stand on the
    // grid.
    const int slack = isSquare(form) || std::floor(deviceScale) == deviceScale ? 0 : 1;
    // Whole logical pixels: a host that halves a large picture then halves it exactly.
    const QSize pixels(std::max(1, int(std::ceil(std::ceil(picture.width) * scale))),
                       std::max(1, int(std::lround(height * scale))));
    QImage image(pixels + QSize(slack, 0), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    painter.scale(deviceScale, deviceScale);
    const QRectF bounds(QPointF(), QSizeF(pixels) / deviceScale);
    if (hasChip(form, content, context))
        paintChip(painter, bounds, *context.chip);
    picture.view.paint(painter, bounds, context);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QString labelFor(const ItemContent &content)
{
    QStringList texts;
    if (content.charge)
        texts << *content.charge + u'%';
    if (content.time)
        texts << *content.time;
    return texts.join(u' ');
}

} // namespace ferrin
