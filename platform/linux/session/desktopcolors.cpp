// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/desktopcolors.h"

#include "base/logging.h"

#include <QDBusArgument>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

AccentColor colorOf(quint32 rgb)
{
    const auto part = [rgb](int shift) { return ((rgb >> shift) & 0xff) / 255.0; };
    return { part(16), part(8), part(0) };
}

/// Absent for what is none, such as a number that is not one.
std::optional<double> partIn(double number)
{
    return number >= 0 && number <= 1 ? std::optional(number) : std::nullopt;
}

std::optional<AccentColor> colorOf(double red, double green, double blue)
{
    const auto r = partIn(red);
    const auto g = partIn(green);
    const auto b = partIn(blue);
    if (r && g && b)
        return AccentColor { *r, *g, *b };
    qCCritical(logger, "The desktop's accent is no colour: %g, %g, %g", red, green, blue);
    return std::nullopt;
}

} // namespace

std::optional<AccentColor> DesktopColors::accent() const
{
    for (const auto &each : { portalAccent, kdeAccent, kdeSelection, gnomeAccent }) {
        if (each)
            return each;
    }
    return std::nullopt;
}

bool DesktopColors::isHighContrast() const
{
    return portalHighContrast.value_or(gnomeHighContrast.value_or(false));
}

std::optional<AccentColor> accentOfPortal(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != u"(ddd)")
        return std::nullopt;
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    return colorOf(red, green, blue);
}

std::optional<AccentColor> accentOfKde(const QString &text)
{
    QList<double> parts;
    for (const QString &part : text.split(u',')) {
        bool isNumber = false;
        parts.append(part.toInt(&isNumber) / 255.0);
        if (!isNumber)
            return std::nullopt;
    }
    const bool isColor = parts.size() == 3 || parts.size() == 4;
    return isColor ? colorOf(parts[0], parts[1], parts[2]) : std::nullopt;
}

std::optional<AccentColor> accentOfGnome(const QString &name)
{
    // The accents of GNOME's own programs.
    static const std::array<std::pair<QStringView, quint32>, 9> accents { {
        { u"blue", 0x3584e4 },
        { u"teal", 0x2190a4 },
        { u"green", 0x3a944a },
        { u"yellow", 0xc88800 },
        { u"orange", 0xed5b00 },
        { u"red", 0xe62d42 },
        { u"pink", 0xd56199 },
        { u"purple", 0x9141ac },
        { u"slate", 0x6f8396 },
    } };
    const auto *const found
        = std::ranges::find_if(accents, [&](const auto &each) { return each.first == name; });
    return found == accents.end() ? std::nullopt : std::optional(colorOf(found->second));
}

std::optional<bool> highContrastOfPortal(const QVariant &value)
{
    if (value.typeId() != QMetaType::UInt || value.toUInt() > 1)
        return std::nullopt;
    return value.toUInt() == 1;
}

} // namespace ferrin
