// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/support/memorydefaultsstore.h"

namespace ferrin::test {

QVariant MemoryDefaultsStore::object(const QString &key) const
{
    return stored.contains(key) ? stored.value(key) : m_registered.value(key);
}

void MemoryDefaultsStore::setObject(const QString &key, const QVariant &value)
{
    const QVariant before = object(key);
    writes.append(key);
    if (value.isValid())
        stored.insert(key, value);
    else
        stored.remove(key);
    if (object(key) != before)
        Q_EMIT changed(key);
}

void MemoryDefaultsStore::registerDefaults(const QVariantMap &defaults)
{
    m_registered.insert(defaults);
}

} // namespace ferrin::test
