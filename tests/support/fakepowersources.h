// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/powersourcesservice.h"

#include <QVariantMap>

namespace ferrin::test {

/// Power sources whose descriptions a test may change at any time.
class FakePowerSources final : public PowerSourcesService
{
public:
    /// Adds a laptop's battery with both estimates, in minutes.
    [[nodiscard]] static QVariantMap battery(const QVariant &timeToEmpty,
                                             const QVariant &timeToFull)
    {
        return { { QStringLiteral("Type"), QStringLiteral("InternalBattery") },
                 { QStringLiteral("Time to Empty"), timeToEmpty },
                 { QStringLiteral("Time to Full Charge"), timeToFull } };
    }

    [[nodiscard]] Snapshot copyInfo() override
    {
        ++snapshots;
        return hasSnapshot ? std::make_shared<int>(snapshots) : nullptr;
    }

    [[nodiscard]] std::optional<QList<SourceHandle>> copyList(const Snapshot &snapshot) override
    {
        if (!snapshot || !hasList)
            return std::nullopt;
        QList<SourceHandle> handles;
        for (qsizetype i = 0; i < descriptions.size(); ++i)
            handles.append(static_cast<SourceHandle>(100 + i));
        return handles;
    }

    [[nodiscard]] QVariant description(const Snapshot &snapshot, SourceHandle source) override
    {
        described.append(source - 100);
        return snapshot ? descriptions.value(source - 100) : QVariant();
    }

    bool hasSnapshot = true;
    bool hasList = true;
    QVariantList descriptions;

    int snapshots = 0;
    /// The handles whose descriptions were requested, in order.
    QList<int> described;
};

} // namespace ferrin::test
