// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <cstddef>

namespace ferrin {

/// The figures that the smart battery can be asked for, in their order. Where a figure is read from
/// the registry as it stands, its raw value is the name of the property.
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
};

inline constexpr std::size_t smartBatteryKeyCount = 25;

/// The text lives as long as the process; taking it allocates nothing.
[[nodiscard]] const QString &rawValue(SmartBatteryKey key);

} // namespace ferrin
