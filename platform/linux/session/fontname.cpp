// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/fontname.h"

#include <QRegularExpression>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// Both write pixels at 96 of them to the inch.
constexpr double pointsPerPixel = 0.75;

std::optional<double> plausible(double points)
{
    constexpr double least = 4;
    constexpr double most = 72;
    return points >= least && points <= most ? std::optional(points) : std::nullopt;
}

} // namespace

QString familyOfPangoName(const QString &name)
{
    static const QRegularExpression size(u"\\s+[0-9.]+(px)?$"_s);
    static const QRegularExpression style(u"\\s(normal|regular|book|roman|oblique|italic|small-"
                                          u"caps|medium|(semi-|demi-|ultra-|extra-)?"
                                          "(light|bold|condensed|expanded)|thin|black|heavy)$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    QString family = name.trimmed();
    family.remove(size);
    // A comma ends the list of families, so that a family may look like a style.
    if (const qsizetype comma = family.indexOf(u','); comma >= 0)
        return family.first(comma).trimmed();
    for (QString shorter = family; !shorter.remove(style).isEmpty() && shorter != family;)
        family = shorter;
    return family;
}

std::optional<double> pointSizeOfPangoName(const QString &name)
{
    static const QRegularExpression size(u"(?:^|[\\s,])([0-9.]+)(px)?$"_s);
    const QRegularExpressionMatch found = size.match(name.trimmed());
    const double number = found.captured(1).toDouble();
    return plausible(found.capturedLength(2) > 0 ? number * pointsPerPixel : number);
}

QString familyOfQtName(const QString &name)
{
    return name.section(u',', 0, 0).trimmed();
}

std::optional<double> pointSizeOfQtName(const QString &name)
{
    if (const auto points = plausible(name.section(u',', 1, 1).toDouble()))
        return points;
    return plausible(name.section(u',', 2, 2).toDouble() * pointsPerPixel);
}

} // namespace ferrin
