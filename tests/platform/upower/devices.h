// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/upowerdevice.h"

namespace ferrin::test {

/// A system battery at 50 %.
inline UPowerDevice pack(UPowerState state, std::chrono::seconds toEmpty = {},
                         std::chrono::seconds toFull = {})
{
    UPowerDevice device;
    device.kind = UPowerKind::Battery;
    device.powersSystem = true;
    device.isPresent = true;
    device.state = state;
    device.percentage = 50;
    device.timeToEmpty = toEmpty;
    device.timeToFull = toFull;
    return device;
}

/// The same device with this model name.
inline UPowerDevice named(UPowerDevice device, const QString &name)
{
    device.model = name;
    return device;
}

} // namespace ferrin::test
