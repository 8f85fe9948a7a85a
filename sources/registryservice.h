// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

namespace ferrin {

/// The device registry of the machine: named services with properties of any type. The platform
/// implements it; BatteryDataFromIOService is its only user. Every call is synchronous and on the
/// main thread.
class RegistryService
{
public:
    /// Identifies a service of the registry; 0 is none.
    using Handle = std::uint32_t;

    /// The criterion for a service.
    struct Matching
    {
        QString name;
    };

    virtual ~RegistryService() = default;

    [[nodiscard]] virtual Matching serviceNameMatching(const QString &name) const = 0;

    /// The first service that matches, or 0. The caller owns the handle until it releases it.
    [[nodiscard]] virtual Handle matchingService(const Matching &matching) = 0;

    /// The current value of the property: a bool, an integer, a floating-point number, a text or a
    /// QVariantMap; invalid when the service does not have the property at the moment.
    [[nodiscard]] virtual QVariant createProperty(Handle service, const QString &key) = 0;

    /// 0 on success.
    virtual int release(Handle service) = 0;
};

} // namespace ferrin
