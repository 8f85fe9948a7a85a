// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/powersupply.h"

namespace ferrin {

SupplyType supplyTypeOf(std::string_view text) noexcept
{
    if (text == "Battery")
        return SupplyType::Battery;
    if (text == "Mains")
        return SupplyType::Mains;
    // USB, USB_DCP, USB_CDP, USB_ACA, USB_C, USB_PD, USB_PD_DRP; BrickID is a USB charger's, too.
    if (text.starts_with("USB") || text == "BrickID")
        return SupplyType::Usb;
    if (text == "Wireless")
        return SupplyType::Wireless;
    return SupplyType::Other;
}

std::optional<ChargeStatus> chargeStatusOf(std::string_view text) noexcept
{
    if (text.empty())
        return std::nullopt;
    if (text == "Charging")
        return ChargeStatus::Charging;
    if (text == "Discharging")
        return ChargeStatus::Discharging;
    if (text == "Not charging")
        return ChargeStatus::NotCharging;
    if (text == "Full")
        return ChargeStatus::Full;
    return ChargeStatus::Unknown;
}

} // namespace ferrin
