// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/registryservice.h"
#include "sources/smartbatterykey.h"

#include <QString>
#include <QVariant>

namespace ferrin {

/// Reads the battery controller's figures from the registry service of the smart battery. A value
/// held by the provider. It looks for the service once, in the constructor; it caches nothing, so
/// every call reads the registry.
class BatteryDataFromIOService
{
public:
    /// The name of the registry service.
    static const QString IOSERVICE_BATTERY;

    /// Logs whether the service was found. The registry must outlive this value.
    explicit BatteryDataFromIOService(RegistryService &registry);

    /// 0 when the service was not found or has been closed.
    [[nodiscard]] RegistryService::Handle service() const noexcept { return m_service; }
    /// While this is false, every figure is absent.
    [[nodiscard]] bool connected() const noexcept { return m_connected; }

    /// The figure in its type and unit; invalid when it is not available.
    ///
    /// bool: externalConnected, isCharging, fullyCharged. qint64: the capacities (mAh, or the
    /// registry's own scale), the cycle counts, the times (minutes; timeRemainingInHs: whole
    /// hours), charge (percent). float: the temperatures (hundredths of a degree Celsius, degrees
    /// Celsius, degrees Fahrenheit), current (A), adapterVoltage (V). QString: serial. As stored,
    /// of any type: watts, name, manufacturer.
    [[nodiscard]] QVariant value(SmartBatteryKey key) const;

    /// The registry property with the key's raw value for its name, unconverted; invalid when there
    /// is none.
    [[nodiscard]] QVariant property(SmartBatteryKey key) const;

    /// Releases the service for good. Returns the registry's result; 0 when nothing was to be
    /// released.
    int close();

private:
    [[nodiscard]] QVariant temperature(SmartBatteryKey key) const;
    [[nodiscard]] QVariant timeRemaining(SmartBatteryKey key) const;
    [[nodiscard]] QVariant charge() const;
    [[nodiscard]] QVariant adapterDetail(SmartBatteryKey key) const;
    [[nodiscard]] QVariant adapterDetailInThousands(SmartBatteryKey key) const;

    RegistryService *m_registry;
    RegistryService::Handle m_service = 0;
    bool m_connected = false;
};

} // namespace ferrin
