// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ferrin {

/// What a power supply says of itself, attribute by attribute, as the kernel wrote it. Nothing here
/// is believed yet: signs, sentinels and contradictions are as they came. An attribute that could
/// not be read, or is no number, is absent.
using Reading = std::optional<qint64>;

enum class SupplyType {
    Battery,
    Mains,
    Usb,
    Wireless,
    Other,
};

/// The kernel's words. Anything else that a driver says is Unknown.
enum class ChargeStatus {
    Unknown,
    Charging,
    Discharging,
    NotCharging,
    Full,
};

/// One system battery. It has a member for each attribute that any gauge may give, because no two
/// give the same: µWh, µW, µAh, µA, µV, seconds, tenths of a degree, percent.
struct BatterySupply
{
    std::string name;
    /// Absent when it could not be read, which is not the same as the kernel's "Unknown".
    std::optional<ChargeStatus> status;
    Reading capacity;
    Reading energyNow;
    Reading energyFull;
    Reading powerNow;
    Reading chargeNow;
    Reading chargeFull;
    Reading currentNow;
    Reading voltageNow;
    Reading voltageMinDesign;
    Reading timeToEmptyNow;
    Reading timeToEmptyAverage;
    Reading timeToFullNow;
    Reading timeToFullAverage;
    /// Percent.
    Reading chargeEndThreshold;
    /// Read only where the charge needs a witness; empty otherwise.
    std::string capacityLevel;

    bool operator==(const BatterySupply &) const = default;
};

/// What changes in months, read only when it is asked for.
struct BatteryRecord
{
    std::string name;
    Reading energyFullDesign;
    Reading chargeFullDesign;
    Reading cycleCount;
    Reading temperature;
    /// Raw bytes; empty when absent.
    std::string serialNumber;
    std::string modelName;
    std::string health;

    bool operator==(const BatteryRecord &) const = default;
};

/// One supply that powers the system from outside, plugged in or not.
struct AdapterSupply
{
    SupplyType type = SupplyType::Other;
    Reading online;
    Reading voltageNow;
    Reading voltageMax;
    Reading voltageMaxDesign;
    Reading currentNow;
    Reading currentMax;
    Reading inputPowerLimit;
    /// Raw bytes; empty when absent.
    std::string usbType;
    std::string manufacturer;
    std::string modelName;

    bool operator==(const AdapterSupply &) const = default;
};

/// All supplies at one moment, each kind sorted by name.
struct PowerSupplies
{
    std::vector<BatterySupply> batteries;
    std::vector<AdapterSupply> adapters;

    bool operator==(const PowerSupplies &) const = default;
};

/// From the attribute `type`.
[[nodiscard]] SupplyType supplyTypeOf(std::string_view text) noexcept;

/// Whether a supply with these attributes powers the machine: not a mouse, whose `scope` is
/// "Device", and not a UPS, which is no part of it.
[[nodiscard]] bool powersSystem(SupplyType type, std::string_view scope) noexcept;

/// From the attribute `status`, in any case of letters: drivers from outside the kernel do not keep
/// to its spelling. Absent for an empty text.
[[nodiscard]] std::optional<ChargeStatus> chargeStatusOf(std::string_view text) noexcept;

} // namespace ferrin
