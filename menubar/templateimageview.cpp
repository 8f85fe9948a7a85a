// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/templateimageview.h"

#include "menubar/devicegrid.h"

#include <QCache>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

QString fileOf(const QString &name)
{
    return u":/symbols/%1.svg"_s.arg(name);
}

/// The artwork's own size, logical pixels; empty for a name without artwork.
QSizeF naturalSizeOf(const QString &name)
{
    static QHash<QString, QSizeF> sizes;
    const auto known = sizes.constFind(name);
    if (known != sizes.cend())
        return *known;
    const QString file = fileOf(name);
    return *sizes.insert(name,
                         QFile::exists(file) ? QSvgRenderer(file).viewBoxF().size() : QSizeF(0, 0));
}

/// Half of what the size has beyond whole pixels.
QPointF gridInsetOf(const QSizeF &size)
{
    return { (size.width() - std::floor(size.width())) / 2,
             (size.height() - std::floor(size.height())) / 2 };
}

/// One rendering: the artwork at this size and place within a tile of whole device pixels.
struct Stencil
{
    QString name;
    QRectF place;

    bool operator==(const Stencil &) const = default;
};

size_t qHash(const Stencil &stencil, size_t seed = 0)
{
    return qHashMulti(seed, stencil.name, stencil.place.x(), stencil.place.y(),
                      stencil.place.width(), stencil.place.height());
}

QImage rendered(const Stencil &stencil)
{
    constexpr int keptStencils = 32;
    static QCache<Stencil, QImage> cache(keptStencils);
    if (const QImage *image = cache.object(stencil))
        return *image;

    QImage image(int(std::ceil(stencil.place.right())), int(std::ceil(stencil.place.bottom())),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(fileOf(stencil.name));
    QPainter painter(&image);
    renderer.render(&painter, stencil.place);
    painter.end();
    cache.insert(stencil, new QImage(image));
    return image;
}

QImage tinted(QImage stencil, const QColor &color)
{
    QPainter painter(&stencil);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(stencil.rect(), color);
    return stencil;
}

/// A sixty-fourth of a pixel: what is closer is the same rendering.
qreal rounded(qreal value)
{
    return std::round(value * 64) / 64;
}

} // namespace

QSizeF TemplateImageView::idealSize(const ViewContext &) const
{
    const QSizeF natural = naturalSizeOf(name);
    if (!height || natural.isEmpty())
        return natural;
    return natural * (*height / natural.height());
}

void TemplateImageView::paint(QPainter &painter, const QRectF &bounds,
                              const ViewContext &context) const
{
    const QSizeF size = idealSize(context);
    if (size.isEmpty())
        return;
    const QSizeF natural = naturalSizeOf(name);
    const QPointF inset = gridInsetOf(natural) * (size.height() / natural.height());
    const QPointF topLeft = bounds.center() - QPointF(size.width(), size.height()) / 2;

    const DeviceGrid grid(painter);
    const QPointF device = grid.toDevice(grid.snapped(topLeft + inset) - inset);
    const QPoint tile(int(std::floor(rounded(device.x()))), int(std::floor(rounded(device.y()))));
    const QSizeF deviceSize = size * grid.scale();
    const QRectF place(rounded(device.x() - tile.x()), rounded(device.y() - tile.y()),
                       rounded(deviceSize.width()), rounded(deviceSize.height()));

    QColor tint = color.value_or(context.text);
    tint.setAlphaF(float(tint.alphaF() * opacity));
    const QImage image = tinted(rendered({ name, place }), tint);

    const DevicePixels inDevicePixels(painter);
    painter.drawImage(tile, image);
}

} // namespace ferrin
