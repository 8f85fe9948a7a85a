// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "sources/smartbatterykey.h"

#include <array>

namespace ferrin {

using namespace Qt::StringLiterals;

const QString &rawValue(SmartBatteryKey key)
{
    static const std::array<QString, smartBatteryKeyCount> rawValues {
        u"ExternalConnected"_s,
        u"IsCharging"_s,
        u"FullyCharged"_s,
        u"AppleRawCurrentCapacity"_s,
        u"AppleRawMaxCapacity"_s,
        u"CurrentCapacity"_s,
        u"CycleCount"_s,
        u"DesignCapacity"_s,
        u"DesignCycleCount9C"_s,
        u"MaxCapacity"_s,
        u"Temperature"_s,
        // The two temperatures differ in the case of their "in".
        u"TemperatureinC"_s,
        u"TemperatureInF"_s,
        u"TimeRemaining"_s,
        u"TimeRemainingInHs"_s,
        u"TimeRemainingInM"_s,
        u"AvgTimeToEmpty"_s,
        u"AvgTimeToFull"_s,
        u"Charge"_s,
        u"Serial"_s,
        u"Watts"_s,
        u"Name"_s,
        u"Manufacturer"_s,
        u"Current"_s,
        u"AdapterVoltage"_s,
        u"ChargingHeld"_s,
        u"ChargeLimit"_s,
    };
    return rawValues.at(static_cast<std::size_t>(key));
}

const QString &adapterDetailsProperty()
{
    static const QString name = u"AdapterDetails"_s;
    return name;
}

} // namespace ferrin
