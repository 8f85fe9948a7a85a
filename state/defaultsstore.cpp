// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/defaultsstore.h"

#include "base/variantcast.h"

namespace ferrin {

std::optional<bool> DefaultsStore::boolean(const QString &key) const
{
    return variantCast<bool>(object(key));
}

std::optional<qint64> DefaultsStore::integer(const QString &key) const
{
    return variantCast<qint64>(object(key));
}

std::optional<double> DefaultsStore::number(const QString &key) const
{
    return variantCast<double>(object(key));
}

std::optional<QString> DefaultsStore::string(const QString &key) const
{
    return variantCast<QString>(object(key));
}

std::optional<QByteArray> DefaultsStore::data(const QString &key) const
{
    return variantCast<QByteArray>(object(key));
}

} // namespace ferrin
