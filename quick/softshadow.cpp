// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "quick/softshadow.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ferrin {

namespace {

// A quarter of the pixels is enough for a shadow this soft.
constexpr int reduction = 4;

// A box blur of one line of pixels that lie `step` bytes apart.
void blurLine(uchar *first, int count, qsizetype step, int radius, std::vector<uchar> &line)
{
    line.resize(size_t(count));
    for (int i = 0; i < count; ++i)
        line[size_t(i)] = first[i * step];
    const auto at = [&](int i) { return i >= 0 && i < count ? int(line[size_t(i)]) : 0; };
    const int length = 2 * radius + 1;
    int sum = 0;
    for (int i = -radius; i < radius; ++i)
        sum += at(i);
    for (int i = 0; i < count; ++i) {
        sum += at(i + radius);
        first[i * step] = uchar(sum / length);
        sum -= at(i - radius);
    }
}

void blur(QImage &mask, int radius)
{
    std::vector<uchar> line;
    for (int y = 0; y < mask.height(); ++y)
        blurLine(mask.scanLine(y), mask.width(), 1, radius, line);
    for (int x = 0; x < mask.width(); ++x)
        blurLine(mask.bits() + x, mask.height(), mask.bytesPerLine(), radius, line);
}

} // namespace

QImage softShadow(const QPainterPath &outline, const QSize &size, qreal softness, int darkness)
{
    QImage mask((size + QSize(1, 1)) / reduction, QImage::Format_Alpha8);
    mask.fill(0);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(1.0 / reduction, 1.0 / reduction);
        painter.fillPath(outline, QColor(0, 0, 0, darkness));
    }
    // Three box blurs approximate a Gaussian.
    const int radius = std::max(1, int(std::lround(softness / reduction / 3)));
    for (int pass = 0; pass < 3; ++pass)
        blur(mask, radius);
    return mask;
}

} // namespace ferrin
