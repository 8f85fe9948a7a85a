// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/registryservice.h"

#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace ferrin::test {

/// A registry with at most one service, whose properties a test may change at any time.
class FakeRegistry final : public RegistryService
{
public:
    static constexpr Handle handle = 4711;

    [[nodiscard]] Matching serviceNameMatching(const QString &name) const override
    {
        return { name };
    }

    [[nodiscard]] Handle matchingService(const Matching &matching) override
    {
        searches.append(matching.name);
        return matching.name == serviceName ? handle : 0;
    }

    [[nodiscard]] QVariant createProperty(Handle service, const QString &key) override
    {
        lookups.append(key);
        return service == handle ? properties.value(key) : QVariant();
    }

    int release(Handle service) override
    {
        released.append(service);
        return releaseResult;
    }

    /// The name of the service; absent when there is none.
    std::optional<QString> serviceName = QStringLiteral("AppleSmartBattery");
    QVariantMap properties;
    int releaseResult = 0;

    /// The properties that were requested, in order.
    QStringList searches;
    QStringList lookups;
    QList<Handle> released;
};

} // namespace ferrin::test
