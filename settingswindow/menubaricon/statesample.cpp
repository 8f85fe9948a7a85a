// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/menubaricon/statesample.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

StateSample discharging()
{
    return { .state = ItemState::discharging,
             .status = BatteryChargingStatus::discharging,
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
    return { .state = ItemState::charging,
             .status = BatteryChargingStatus::charging,
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
    return { .state = ItemState::charged,
             .status = BatteryChargingStatus::charged,
             .charge = 100,
             .caption = u"Preview 100% fully charged"_s,
             .title = u"When fully charged"_s,
             .description = u"Choose menu bar icon appearance when power adapter is connected and "
                            "battery is fully charged."_s };
}

} // namespace

StateSample sampleOf(ItemState state)
{
    switch (state) {
    case ItemState::discharging:
        return discharging();
    case ItemState::charging:
        return charging();
    case ItemState::charged:
        return charged();
    }
    Q_UNREACHABLE();
}

} // namespace ferrin
