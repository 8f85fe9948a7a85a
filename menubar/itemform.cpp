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

/// A view shrunk or enlarged as a whole, and the width of the picture that it stands in.
struct Form
{
    AnyView view;
    qreal zoom = 1;
    /// Logical pixels, after zooming.
    qreal width = 0;
};

qreal fitting(const QSizeF &size, qreal width, qreal height)
{
    return size.isEmpty() ? 1 : std::min(width / size.width(), height / size.height());
}

Form wide(const ItemContent &content, int height, const ViewContext &context)
{
    const AnyView view = viewFor(content);
    const QSizeF ideal = view.idealSize(context);
    const qreal zoom = ideal.height() > height ? height / ideal.height() : 1;
    return { view, zoom, ideal.width() * zoom };
}

Form oneLine(const ItemContent &content, int height, const ViewContext &context)
{
    constexpr qreal designHeight = 16;
    constexpr int pixelSize = 12;
    RowView row { .spacing = 5, .children = {} };
    if (content.icon)
        row.children.push_back(viewFor(*content.icon));
    if (content.charge)
        row.children.push_back(TextView { .text = *content.charge + u'%', .pixelSize = pixelSize });
    if (content.time)
        row.children.push_back(TextView { .text = *content.time, .pixelSize = pixelSize });
    const QSizeF ideal = row.idealSize(context);
    const qreal zoom
        = std::min(height / designHeight, ideal.isEmpty() ? 1 : height / ideal.height());
    return { row, zoom, ideal.width() * zoom };
}

Form square(const ItemContent &content, int height)
{
    return { SquareItemView { content }, 1, qreal(height) };
}

Form glyph(const ItemContent &content, int height, const ViewContext &context)
{
    const AnyView view = viewFor(content.icon.value_or(IconElement {}));
    return { view, fitting(view.idealSize(context), height, height), qreal(height) };
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
        return glyph(content, height, context);
    }
    Q_UNREACHABLE();
}

} // namespace

QImage paintForm(ItemForm form, const ItemContent &content, int height, qreal scale,
                 const ViewContext &context)
{
    const Form picture = formOf(form, content, height, context);
    const QSize pixels(std::max(1, int(std::ceil(picture.width * scale))),
                       std::max(1, int(std::lround(height * scale))));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    painter.scale(scale * picture.zoom, scale * picture.zoom);
    const QSizeF bounds = QSizeF(pixels) / (scale * picture.zoom);
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
