// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/statesample.h"

#include "state/iconcatalogues.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

StateSample discharging()
{
    return { .status = BatteryChargingStatus::discharging,
             .showIcon = DisplaySwitch::showIconWhenDischarging,
             .showCharge = DisplaySwitch::showChargeWhenDischarging,
             .showTime = DisplaySwitch::showTimeWhenDischarging,
             .icons = DischargingIconsAvailable::shared().list,
             .charge = 37,
             .time = u"4:29"_s,
             .caption = u"Preview 37% and 4:29 to empty"_s,
             .title = u"When discharging"_s,
             .description = u"Choose menu bar icon appearance when power adapter is disconnected "
                            "and battery is discharging."_s,
             .timeLabel = u"Show time to empty"_s };
}

StateSample charging()
{
    return { .status = BatteryChargingStatus::charging,
             .showIcon = DisplaySwitch::showIconWhenCharging,
             .showCharge = DisplaySwitch::showChargeWhenCharging,
             .showTime = DisplaySwitch::showTimeWhenCharging,
             .icons = ChargingIconsAvailable::shared().list,
             .charge = 78,
             .time = u"0:52"_s,
             .caption = u"Preview 78% and 0:52 to full"_s,
             .title = u"When charging"_s,
             .description = u"Choose menu bar icon appearance when power adapter is connected and "
                            "battery is charging."_s,
             .timeLabel = u"Show time to full"_s };
}

StateSample charged()
{
    return { .status = BatteryChargingStatus::charged,
             .showIcon = DisplaySwitch::showIconWhenCharged,
             .showCharge = DisplaySwitch::showChargeWhenCharged,
             .showTime = DisplaySwitch::showTimeWhenCharged,
             .icons = ChargedIconsAvailable::shared().list,
             .charge = 100,
             .caption = u"Preview 100% fully charged"_s,
             .title = u"When fully charged"_s,
             .description = u"Choose menu bar icon appearance when power adapter is connected and "
                            "battery is fully charged."_s };
}

} // namespace

StateSample sampleOf(BatteryChargingStatus status)
{
    switch (status) {
    case BatteryChargingStatus::discharging:
        return discharging();
    case BatteryChargingStatus::charging:
        return charging();
    case BatteryChargingStatus::charged:
    case BatteryChargingStatus::finishingCharge:
    case BatteryChargingStatus::unknown:
        return charged();
    }
    Q_UNREACHABLE();
}

} // namespace ferrin
