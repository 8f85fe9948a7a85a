// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/panelcolors/colortext.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace ferrin {

namespace {

/// Qt reads "#rrggbbaa" as "#aarrggbb".
std::optional<QColor> hexColor(const QString &text)
{
    constexpr qsizetype withOpacity = 9;
    constexpr qsizetype withoutOpacity = 7;
    const bool hasOpacity = text.size() == withOpacity;
    QColor color(hasOpacity ? text.left(withoutOpacity) : text);
    bool isNumber = true;
    if (hasOpacity)
        color.setAlpha(text.sliced(withoutOpacity).toInt(&isNumber, 16));
    return color.isValid() && isNumber ? std::optional(color) : std::nullopt;
}

/// Three parts of 255 and perhaps an opacity.
std::optional<QColor> colorOf(const QStringList &parts)
{
    std::array<int, 3> rgb {};
    if (parts.size() < qsizetype(rgb.size()))
        return {};
    for (size_t i = 0; i < rgb.size(); ++i) {
        bool isNumber = false;
        rgb[i] = parts[qsizetype(i)].trimmed().toInt(&isNumber);
        if (!isNumber || rgb[i] < 0 || rgb[i] > 255)
            return {};
    }
    QColor color(rgb[0], rgb[1], rgb[2]);
    if (parts.size() > qsizetype(rgb.size()))
        color.setAlphaF(opacityIn(parts[qsizetype(rgb.size())].trimmed()));
    return color;
}

} // namespace

std::optional<QColor> colorIn(const QString &text)
{
    if (text.startsWith(u'#'))
        return hexColor(text);
    const qsizetype open = text.indexOf(u'(');
    if (open >= 0)
        return colorOf(text.sliced(open + 1).chopped(text.endsWith(u')') ? 1 : 0).split(u','));
    if (text.contains(u','))
        return colorOf(text.split(u','));
    const QColor named(text);
    return named.isValid() ? std::optional(named) : std::nullopt;
}

float opacityIn(const QString &text)
{
    const float part = text.endsWith(u'%') ? text.chopped(1).toFloat() / 100 : text.toFloat();
    const bool isOf255 = !text.endsWith(u'%') && part > 1;
    // A number, which "nan" is not.
    return part > 0 ? std::min(isOf255 ? part / 255 : part, 1.0f) : 0;
}

} // namespace ferrin
