// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/symbolicicon.h"

#include "menubar/glyphdrawing.h"
#include "menubar/iconview.h"

#include <QFile>
#include <QRectF>
#include <QRegularExpression>

#include <algorithm>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal side = 24;
constexpr qreal strong = 0.875;
constexpr qreal weak = 0.5;

/// An outline of the artwork, as the data of an SVG path, with its size.
struct Artwork
{
    QString path;
    QSizeF size;
};

Artwork artwork(const QString &name)
{
    QFile file(u":/symbols/%1.svg"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString svg = QString::fromUtf8(file.readAll());
    static const QRegularExpression box(u"viewBox=\"0 0 ([\\d.]+) ([\\d.]+)\""_s);
    static const QRegularExpression data(u"\\sd=\"([^\"]+)\""_s);
    const auto size = box.match(svg);
    Artwork result { .path = {},
                     .size = { size.captured(1).toDouble(), size.captured(2).toDouble() } };
    for (auto each = data.globalMatch(svg); each.hasNext();)
        result.path += each.next().captured(1);
    return result;
}

QString pathElement(const QString &path, qreal opacity, const QString &more = {})
{
    return u"<path fill-rule=\"evenodd\" fill-opacity=\"%1\" d=\"%2\"%3/>"_s.arg(
        QString::number(opacity), path, more);
}

QString rectElement(const QRectF &rect, qreal opacity)
{
    return u"<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"1.2\" fill-opacity=\"%5\"/>"_s
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height())
        .arg(opacity);
}

/// The rectangle in a red that is seen on dark panels and light ones. A toolkit fills shapes with
/// the panel's colour, or its theme's for errors, which may be dark on dark; lines it leaves alone.
QString redElement(const QRectF &rect)
{
    return u"<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%2\" stroke=\"#f44336\" stroke-width=\"%4\"/>"_s
        .arg(rect.left())
        .arg(rect.center().y())
        .arg(rect.right())
        .arg(rect.height());
}

/// The elements, drawn for this size, in the middle of the image.
QString centred(const QString &elements, const QSizeF &size)
{
    // As large as themes draw their own icons.
    constexpr qreal largestHeight = 18;
    constexpr qreal largestZoom = 1.25;
    const qreal zoom
        = std::min({ largestZoom, side / size.width(), largestHeight / size.height() });
    return u"<g transform=\"translate(%1 %2) scale(%3)\">%4</g>"_s
        .arg((side - size.width() * zoom) / 2)
        .arg((side - size.height() * zoom) / 2)
        .arg(zoom)
        .arg(elements);
}

/// Outline and fill of a glyph: the artwork's name and where the fill lies when it is full.
struct Parts
{
    QString outline;
    QRectF room;
};

Parts partsOf(GlyphShape shape)
{
    switch (shape) {
    case GlyphShape::Upright1:
        return { u"vertBatt1Border"_s, { 0, 2, 6, 12 } };
    case GlyphShape::Lying1:
    case GlyphShape::Lying1WithBolt:
        return { u"horzBatt1Border"_s, { 0, 0, 18, 8 } };
    case GlyphShape::Upright2:
        return { u"vertBatt2Border.125"_s, { 2, 4, 6, 12 } };
    case GlyphShape::Lying2:
    case GlyphShape::Lying2WithBolt:
        return { u"horzBatt2Border.125"_s, { 2.5, 2, 16, 7 } };
    }
    Q_UNREACHABLE();
}

QRectF filled(QRectF room, bool isUpright, double percent)
{
    const double share = std::clamp(percent, 0.0, 100.0) / 100;
    if (isUpright)
        room.setTop(room.bottom() - room.height() * share);
    else
        room.setWidth(room.width() * share);
    return room;
}

/// The battery with the bolt standing in a gap that is cut out of it.
QString withBolt(const QString &battery, const QSizeF &size, const QPointF &offset)
{
    const Artwork gap = artwork(u"customBoltMask"_s);
    const QPointF corner(size.width() / 2 - gap.size.width() / 2 + offset.x(),
                         size.height() / 2 - gap.size.height() / 2 + offset.y());
    const QString moved = u" transform=\"translate(%1 %2)\""_s.arg(corner.x()).arg(corner.y());
    const QString everything = u"M-30-30L60-30L60 60L-30 60Z"_s;
    return u"<clipPath id=\"gap\"><path clip-rule=\"evenodd\" d=\"%1%2\"%3/></clipPath>"
           "<g clip-path=\"url(#gap)\">%4</g>%5"_s.arg(
               everything, gap.path, moved, battery,
               pathElement(artwork(u"customBolt"_s).path, strong, moved));
}

QString glyph(const IconElement &icon)
{
    const auto [shape, style] = drawingOf(icon.icon);
    const Parts parts = partsOf(shape);
    const Artwork outline = artwork(parts.outline);
    const bool isLow = isNearlyEmpty(icon.charge, icon.status) && !hasBolt(icon.icon);
    const QRectF fill = filled(parts.room, isUpright(icon.icon), icon.charge);
    const QString battery = pathElement(outline.path, style == BatteryStyle::normal ? weak : strong)
        + (isLow ? redElement(fill)
                 : rectElement(fill, style == BatteryStyle::inverted ? weak : strong));
    if (shape == GlyphShape::Lying1WithBolt)
        return centred(withBolt(battery, outline.size, { 0, 0 }), outline.size);
    if (shape == GlyphShape::Lying2WithBolt)
        return centred(withBolt(battery, outline.size, { 1, -0.5 }), outline.size);
    return centred(battery, outline.size);
}

QString symbol(const QString &name)
{
    const Artwork image = artwork(name);
    return centred(pathElement(image.path, strong), image.size);
}

QString fault(IconElement icon)
{
    icon.icon = Icon::battery1V;
    return glyph(icon) + symbol(u"xmark"_s);
}

} // namespace

QByteArray symbolicIcon(const IconElement &icon)
{
    const QString elements = icon.fault ? fault(icon)
        : isGlyph(icon.icon)            ? glyph(icon)
                                        : symbol(rawValue(icon.icon));
    return u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"24\" height=\"24\" "
           "viewBox=\"0 0 24 24\">%1</svg>\n"_s.arg(elements)
               .toUtf8();
}

} // namespace ferrin
