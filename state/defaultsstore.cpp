// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/defaultsstore.h"

namespace ferrin {

namespace {

bool isWhole(int type)
{
    return type == QMetaType::Int || type == QMetaType::LongLong || type == QMetaType::UInt
        || type == QMetaType::ULongLong;
}

bool isNumber(int type)
{
    return isWhole(type) || type == QMetaType::Double || type == QMetaType::Float;
}

} // namespace

std::optional<bool> DefaultsStore::boolean(const QString &key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<qint64> DefaultsStore::integer(const QString &key) const
{
    const QVariant value = object(key);
    return isWhole(value.typeId()) ? std::optional(value.toLongLong()) : std::nullopt;
}

std::optional<double> DefaultsStore::number(const QString &key) const
{
    const QVariant value = object(key);
    return isNumber(value.typeId()) ? std::optional(value.toDouble()) : std::nullopt;
}

std::optional<QString> DefaultsStore::string(const QString &key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QByteArray> DefaultsStore::data(const QString &key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::QByteArray ? std::optional(value.toByteArray())
                                                   : std::nullopt;
}

} // namespace ferrin
