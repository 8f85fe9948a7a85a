// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/fittedtextview.h"

#include "menubar/devicegrid.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

QFont fontOf(const QString &family, int pixelSize)
{
    QFont font(family);
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::Bold);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

/// What a figure covers above and below the line. Letters may reach further, figures never do.
QRectF figureOf(const QFont &font)
{
    return QFontMetricsF(font).tightBoundingRect(u"0"_s);
}

/// The same without regard to the pixel grid, on which a squeezed text does not stand.
qreal outlineHeightOf(QFont font)
{
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath figure;
    figure.addText(0, 0, font, u"0"_s);
    return figure.boundingRect().height();
}

/// Pixels. Less than this above or below is not seen.
constexpr qreal invisible = 0.3;

/// Narrower than this, figures lose their counters: then they become smaller instead.
constexpr qreal tightest = 0.72;

qreal widthOf(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

/// The largest font in which the text, squeezed a little if need be, fits.
QFont fontForPlace(const QString &family, const QString &text, const QSizeF &place)
{
    const auto fits = [&](const QFont &font) {
        return figureOf(font).height() <= place.height()
            && outlineHeightOf(font) <= place.height() + invisible
            && widthOf(text, font) * tightest <= place.width();
    };
    int pixelSize = std::max(1, int(std::ceil(place.height() * 1.6)));
    QFont font = fontOf(family, pixelSize);
    while (pixelSize > 1 && !fits(font))
        font = fontOf(family, --pixelSize);
    return font;
}

} // namespace

void FittedTextView::paint(QPainter &painter, const QRectF &bounds,
                           const ViewContext &context) const
{
    const DeviceGrid grid(painter);
    const QRectF place(grid.toDevice(bounds.topLeft()), bounds.size() * grid.scale());
    const QFont font = fontForPlace(context.fontFamily, text, place.size());
    const QRectF figure = figureOf(font);
    const qreal width = widthOf(text, font);
    // By the painter: a font asked for a stretch may answer with the face of another family.
    const qreal squeeze = std::min(1.0, place.width() / width);
    const QPointF baseline(place.center().x() - width * squeeze / 2,
                           std::floor(place.center().y() - figure.center().y() + 0.5));
    const DevicePixels inDevicePixels(painter);
    painter.translate(baseline);
    painter.scale(squeeze, 1);
    painter.setFont(font);
    painter.setPen(context.text);
    painter.drawText(QPointF(0, 0), text);
}

} // namespace ferrin
