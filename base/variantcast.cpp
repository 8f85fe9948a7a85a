// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/variantcast.h"

#include <cmath>
#include <limits>

namespace ferrin {

namespace {

template <typename T>
std::optional<T> exactly(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<T>())
        return std::nullopt;
    return *static_cast<const T *>(value.constData());
}

bool isSigned(int type)
{
    return type == QMetaType::Int || type == QMetaType::LongLong || type == QMetaType::Long
        || type == QMetaType::Short;
}

bool isUnsigned(int type)
{
    return type == QMetaType::UInt || type == QMetaType::ULongLong || type == QMetaType::ULong
        || type == QMetaType::UShort;
}

bool isFloating(int type)
{
    return type == QMetaType::Double || type == QMetaType::Float;
}

std::optional<qint64> wholeNumber(double value)
{
    // The bounds are exact; "not a number" fails both comparisons.
    if (!(value >= -0x1p63 && value < 0x1p63) || std::trunc(value) != value)
        return std::nullopt;
    return static_cast<qint64>(value);
}

} // namespace

template <>
std::optional<bool> variantCast(const QVariant &value)
{
    return exactly<bool>(value);
}

template <>
std::optional<qint64> variantCast(const QVariant &value)
{
    // The common case first, without a conversion: this runs several times in each refresh.
    if (const auto held = exactly<qint64>(value))
        return held;
    const int type = value.typeId();
    if (isSigned(type))
        return value.toLongLong();
    if (isUnsigned(type)) {
        const quint64 number = value.toULongLong();
        constexpr auto greatest = static_cast<quint64>(std::numeric_limits<qint64>::max());
        return number <= greatest ? std::optional(static_cast<qint64>(number)) : std::nullopt;
    }
    return isFloating(type) ? wholeNumber(value.toDouble()) : std::nullopt;
}

template <>
std::optional<float> variantCast(const QVariant &value)
{
    if (const auto held = exactly<float>(value))
        return held;
    const std::optional<double> number = variantCast<double>(value);
    if (!number)
        return std::nullopt;
    const bool fits = std::abs(*number) <= static_cast<double>(std::numeric_limits<float>::max());
    if (std::isfinite(*number) && !fits)
        return std::nullopt;
    return static_cast<float>(*number);
}

template <>
std::optional<double> variantCast(const QVariant &value)
{
    if (const auto held = exactly<double>(value))
        return held;
    const int type = value.typeId();
    if (!isSigned(type) && !isUnsigned(type) && !isFloating(type))
        return std::nullopt;
    return value.toDouble();
}

template <>
std::optional<QString> variantCast(const QVariant &value)
{
    return exactly<QString>(value);
}

template <>
std::optional<QByteArray> variantCast(const QVariant &value)
{
    return exactly<QByteArray>(value);
}

template <>
std::optional<QVariantMap> variantCast(const QVariant &value)
{
    return exactly<QVariantMap>(value);
}

} // namespace ferrin
