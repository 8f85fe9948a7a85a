// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/itemcontent.h"

namespace ferrin::test {

/// Icon, charge and time of a discharging battery.
[[nodiscard]] inline ItemContent dischargingAt(int charge, const QString &time)
{
    ItemContent content { .status = BatteryChargingStatus::discharging };
    content.icon = IconElement { .icon = Icon::battery2H,
                                 .charge = double(charge),
                                 .status = BatteryChargingStatus::discharging };
    content.charge = QString::number(charge);
    content.time = time;
    return content;
}

} // namespace ferrin::test
