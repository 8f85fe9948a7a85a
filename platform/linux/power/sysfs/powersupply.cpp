// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/powersupply.h"

#include <QByteArrayView>

namespace ferrin {

namespace {

bool isWord(std::string_view text, std::string_view word) noexcept
{
    return QByteArrayView(text).compare(QByteArrayView(word), Qt::CaseInsensitive) == 0;
}

} // namespace

SupplyType supplyTypeOf(std::string_view text) noexcept
{
    if (text == "Battery")
        return SupplyType::Battery;
    if (text == "Mains")
        return SupplyType::Mains;
    // USB, USB_DCP, USB_CDP, USB_ACA, USB_C, USB_PD, USB_PD_DRP; BrickID is a USB charger, too.
    if (text.starts_with("USB") || text == "BrickID")
        return SupplyType::Usb;
    if (text == "Wireless")
        return SupplyType::Wireless;
    return SupplyType::Other;
}

bool powersSystem(SupplyType type, std::string_view scope) noexcept
{
    return type != SupplyType::Other && scope != "Device";
}

std::optional<ChargeStatus> chargeStatusOf(std::string_view text) noexcept
{
    if (text.empty())
        return std::nullopt;
    if (isWord(text, "Charging"))
        return ChargeStatus::Charging;
    if (isWord(text, "Discharging"))
        return ChargeStatus::Discharging;
    if (isWord(text, "Not charging"))
        return ChargeStatus::NotCharging;
    if (isWord(text, "Full"))
        return ChargeStatus::Full;
    return ChargeStatus::Unknown;
}

} // namespace ferrin
