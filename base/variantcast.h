// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace ferrin {

/// The one way to take a plain value out of a value of any type. A value of another type is absent,
/// never converted: a bool is not a number, a text is neither. Numbers alone are bridged: a whole
/// number reads as an integer however it is held, and every number reads as a float.
///
/// Exists for bool, qint64, float, double, QString, QByteArray and QVariantMap.
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

/// The way back. An absent value is an invalid one, which QML reads as `undefined`.
template <typename T>
[[nodiscard]] QVariant toVariant(const std::optional<T> &value)
{
    return value ? QVariant(*value) : QVariant();
}

} // namespace ferrin
