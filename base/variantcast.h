// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace ferrin {

/// The value of a QVariant as T; absent when it holds another type. Unlike QVariant::value(), it
/// does not convert: a bool is not a number, and a string is neither. Only numbers are converted to
/// each other: a whole number of any numeric type can be read as an integer, and every number as a
/// float.
///
/// Specialised for bool, qint64, float, double, QString, QByteArray and QVariantMap.
template <typename T>
[[nodiscard]] std::optional<T> variantCast(const QVariant &value);

template <>
std::optional<bool> variantCast(const QVariant &value);

/// Absent for a number with a fraction or beyond 64 bits.
template <>
std::optional<qint64> variantCast(const QVariant &value);

/// Absent for a finite number beyond the range of a float; rounded otherwise.
template <>
std::optional<float> variantCast(const QVariant &value);

template <>
std::optional<double> variantCast(const QVariant &value);

template <>
std::optional<QString> variantCast(const QVariant &value);

template <>
std::optional<QByteArray> variantCast(const QVariant &value);

template <>
std::optional<QVariantMap> variantCast(const QVariant &value);

/// The reverse. An absent value becomes an invalid QVariant, which QML reads as `undefined`.
template <typename T>
[[nodiscard]] QVariant toVariant(const std::optional<T> &value)
{
    return value ? QVariant(*value) : QVariant();
}

} // namespace ferrin
