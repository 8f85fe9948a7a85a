// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/defaultsstore.h"

#include <QVariantMap>

namespace ferrin::test {

/// A defaults store in memory that records what is written to it.
class MemoryDefaultsStore final : public DefaultsStore
{
    Q_OBJECT

public:
    using DefaultsStore::DefaultsStore;

    [[nodiscard]] QVariant object(const QString &key) const override;
    void setObject(const QString &key, const QVariant &value) override;
    void registerDefaults(const QVariantMap &defaults) override;

    /// Stored values only, without registered defaults. Tests may insert values of any type.
    QVariantMap stored;
    /// The keys that were written or removed so far, in order.
    QStringList writes;

private:
    QVariantMap m_registered;
};

} // namespace ferrin::test
