// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/registryservice.h"
#include "sources/smartbatterykey.h"

#include <QString>
#include <QVariant>

namespace ferrin {

/// The battery controller's own figures, read from the registry service of the smart battery. A
/// value held by the provider. It looks for the service once, when it is made, and reads afresh at
/// each look-up: it caches nothing and never looks for the service again.
class BatteryDataFromIOService
{
public:
    /// The name that the service is looked for by.
    static const QString IOSERVICE_BATTERY;

    /// Logs whether the service was found. The registry must outlive this value.
    explicit BatteryDataFromIOService(RegistryService &registry);

    /// 0 when the service was not found or has been closed.
    [[nodiscard]] RegistryService::Handle service() const noexcept { return m_service; }
    /// Every look-up is refused while this is false.
    [[nodiscard]] bool connected() const noexcept { return m_connected; }

    /// The figure in the type and unit that belong to the key; invalid when there is none now.
    ///
    /// bool: externalConnected, isCharging, fullyCharged. qint64: the capacities (mAh, or the
    /// registry's own scale), the cycle counts, the times (minutes; timeRemainingInHs: whole
    /// hours), charge (percent). float: the temperatures (hundredths of a degree Celsius, degrees
    /// Celsius, degrees Fahrenheit), current (A), adapterVoltage (V). QString: serial. As stored,
    /// whatever the type: watts, name, manufacturer.
    [[nodiscard]] QVariant value(SmartBatteryKey key) const;

    /// The registry property named by the key's raw value, with the type it has there; invalid when
    /// there is none.
    [[nodiscard]] QVariant property(SmartBatteryKey key) const;

    /// Releases the service for good; the release result, 0 when there was nothing to release.
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
