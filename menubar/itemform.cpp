// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemform.h"

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

Form wide(const ItemContent &content, int height, const ViewContext &context)
{
    const AnyView view = viewFor(content);
    const QSizeF ideal = view.idealSize(context);
    const qreal zoom = std::min(1.0, ideal.isEmpty() ? 1.0 : height / ideal.height());
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

Form glyph(const ItemContent &content, int height)
{
    const AnyView icon = content.icon ? viewFor(*content.icon) : AnyView();
    return { FittedView { .content = icon, .size = QSizeF(height, height) }, qreal(height) };
}

bool isSquare(ItemForm form)
{
    return form == ItemForm::Square || form == ItemForm::Glyph;
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

} // namespace

QImage paintForm(ItemForm form, const ItemContent &content, int height, qreal scale,
                 const ViewContext &context)
{
    const Form picture = formOf(form, content, height, context);
    const qreal deviceScale = scale * picture.zoom;
    // Where logical pixels are no whole ones, a glyph may move by half a pixel to stand on the
    // grid.
    const int slack = isSquare(form) || std::floor(deviceScale) == deviceScale ? 0 : 1;
    const QSize pixels(std::max(1, int(std::ceil(picture.width * scale))),
                       std::max(1, int(std::lround(height * scale))));
    QImage image(pixels + QSize(slack, 0), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    painter.scale(deviceScale, deviceScale);
    const QSizeF bounds = QSizeF(pixels) / deviceScale;
    picture.view.paint(painter, QRectF(QPointF(), bounds), context);
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
