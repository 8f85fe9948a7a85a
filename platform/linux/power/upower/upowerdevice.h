// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <optional>

namespace ferrin {

/// UPower's device types, as far as they may power the system.
/// https://upower.freedesktop.org/docs/Device.html
enum class UPowerKind { Battery, Ups, Other };

/// UPower's battery states, in the order of their numbers.
/// https://upower.freedesktop.org/docs/Device.html
enum class UPowerState {
    Unknown,
    Charging,
    Discharging,
    Empty,
    FullyCharged,
    PendingCharge,
    PendingDischarge,
};

/// UPower's properties of one device. Each is absent while it is not known, and when it came with a
/// type that differs from UPower's documentation. A plain value, kept by UPowerClient.
struct UPowerDevice
{
    std::optional<UPowerKind> kind;
    /// False for mice, keyboards and the like, which power only themselves.
    std::optional<bool> powersSystem;
    std::optional<bool> isPresent;
    std::optional<UPowerState> state;
    /// 0 to 100, clamped.
    std::optional<int> percentage;
    /// Zero means "not known" in UPower.
    std::optional<std::chrono::seconds> timeToEmpty;
    /// Zero means "not known" in UPower.
    std::optional<std::chrono::seconds> timeToFull;
    /// At most 256 characters; absent when empty.
    std::optional<QString> model;
    /// Usually the kernel's name of the supply; absent when empty.
    std::optional<QString> nativePath;

    friend bool operator==(const UPowerDevice &, const UPowerDevice &) = default;

    /// Sets the properties that are in the map and leaves all others unchanged. Returns the names
    /// of those with a wrong type.
    QStringList update(const QVariantMap &properties);

    /// A battery or a UPS of the machine itself, or not yet known to be something else.
    [[nodiscard]] bool mayPowerSystem() const noexcept;

    /// A battery or a UPS of the machine itself, and not known to be absent.
    [[nodiscard]] bool isPowerSource() const noexcept;
};

} // namespace ferrin
