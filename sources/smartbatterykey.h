// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <cstddef>

namespace ferrin {

/// The figures of the smart battery, in their order. The raw value of a figure that is read from
/// the registry unchanged is the name of its property, of one of the adapter the key of its entry
/// in the property adapterDetailsProperty(). Both the reader and the platform's registry take the
/// names from here.
enum class SmartBatteryKey {
    externalConnected,
    isCharging,
    fullyCharged,
    appleRawCurrentCapacity,
    appleRawMaxCapacity,
    currentCapacity,
    cycleCount,
    designCapacity,
    designCycleCount9C,
    maxCapacity,
    temperature,
    temperatureInC,
    temperatureInF,
    timeRemaining,
    timeRemainingInHs,
    timeRemainingInM,
    avgTimeToEmpty,
    avgTimeToFull,
    charge,
    serial,
    watts,
    name,
    manufacturer,
    current,
    adapterVoltage,
    /// Boolean: the battery is on external power and kept from charging below full.
    chargingHeld,
    /// Percent: the limit that it is held at.
    chargeLimit,
};

inline constexpr std::size_t smartBatteryKeyCount = 27;

/// Valid for the life of the process. Does not allocate.
[[nodiscard]] const QString &rawValue(SmartBatteryKey key);

/// The name of the property that holds the adapter's figures, a QVariantMap.
[[nodiscard]] const QString &adapterDetailsProperty();

} // namespace ferrin
