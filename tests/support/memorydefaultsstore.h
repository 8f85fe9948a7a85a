// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/defaultsstore.h"

#include <QVariantMap>

namespace ferrin::test {

/// A defaults store that lives in memory and counts what is written to it.
class MemoryDefaultsStore final : public DefaultsStore
{
    Q_OBJECT

public:
    using DefaultsStore::DefaultsStore;

    [[nodiscard]] QVariant object(const QString &key) const override;
    void setObject(const QString &key, const QVariant &value) override;
    void registerDefaults(const QVariantMap &defaults) override;

    /// Only what is stored, without registered defaults. Tests may put values of any type here.
    QVariantMap stored;
    /// The keys written or removed so far, in their order.
    QStringList writes;

private:
    QVariantMap m_registered;
};

} // namespace ferrin::test
