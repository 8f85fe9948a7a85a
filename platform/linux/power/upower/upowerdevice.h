// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <chrono>
#include <optional>

namespace ferrin {

/// UPower's kinds of devices, as far as they may power the system.
enum class UPowerKind { Battery, Ups, Other };

/// UPower's states of a battery.
enum class UPowerState {
    Unknown,
    Charging,
    Discharging,
    Empty,
    FullyCharged,
    PendingCharge,
    PendingDischarge,
};

/// What UPower says of one device, value by value: each is absent while it is not known, and when
/// it came in another type than UPower's own. A plain value, kept by UPowerPicture.
struct UPowerDevice
{
    std::optional<UPowerKind> kind;
    /// False for mice, keyboards and the like, which power only themselves.
    std::optional<bool> powersSystem;
    std::optional<bool> isPresent;
    std::optional<UPowerState> state;
    /// 0 to 100, clamped.
    std::optional<int> percentage;
    /// Zero is UPower's "not known".
    std::optional<std::chrono::seconds> timeToEmpty;
    /// Zero is UPower's "not known".
    std::optional<std::chrono::seconds> timeToFull;
    /// As its maker wrote it, shortened to a bearable length; absent when empty.
    std::optional<QString> model;
    /// The kernel's name of it, mostly; absent when empty.
    std::optional<QString> nativePath;

    friend bool operator==(const UPowerDevice &, const UPowerDevice &) = default;

    /// Takes over the properties that are in the map and leaves all others as they are. Answers
    /// with the names of those whose value was of another type than UPower's.
    QStringList update(const QVariantMap &properties);

    /// A battery or a UPS of the machine itself, or not yet known to be something else.
    [[nodiscard]] bool mayPowerSystem() const noexcept;

    /// A battery or a UPS of the machine itself, and not known to be absent.
    [[nodiscard]] bool isPowerSource() const noexcept;
};

} // namespace ferrin
