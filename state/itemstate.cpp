// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "state/itemstate.h"

#include "state/iconcatalogues.h"
#include "state/settingsdata.h"

namespace ferrin {

ItemSwitches switchesOf(ItemState state)
{
    switch (state) {
    case ItemState::discharging:
        return { .icon = DisplaySwitch::showIconWhenDischarging,
                 .charge = DisplaySwitch::showChargeWhenDischarging,
                 .time = DisplaySwitch::showTimeWhenDischarging };
    case ItemState::charging:
        return { .icon = DisplaySwitch::showIconWhenCharging,
                 .charge = DisplaySwitch::showChargeWhenCharging,
                 .time = DisplaySwitch::showTimeWhenCharging };
    case ItemState::charged:
        return { .icon = DisplaySwitch::showIconWhenCharged,
                 .charge = DisplaySwitch::showChargeWhenCharged,
                 .time = DisplaySwitch::showTimeWhenCharged };
    }
    Q_UNREACHABLE();
}

Bindable<Icon> bindableIconSelected(ItemState state, SettingsData &settings)
{
    switch (state) {
    case ItemState::discharging:
        return settings.bindableDischargingIconSelected();
    case ItemState::charging:
        return settings.bindableChargingIconSelected();
    case ItemState::charged:
        return settings.bindableChargedIconSelected();
    }
    Q_UNREACHABLE();
}

void setIconSelected(ItemState state, Icon icon, SettingsData &settings)
{
    switch (state) {
    case ItemState::discharging:
        return settings.setDischargingIconSelected(icon);
    case ItemState::charging:
        return settings.setChargingIconSelected(icon);
    case ItemState::charged:
        return settings.setChargedIconSelected(icon);
    }
}

std::span<const Icon> availableIcons(ItemState state)
{
    switch (state) {
    case ItemState::discharging:
        return DischargingIconsAvailable::shared().list;
    case ItemState::charging:
        return ChargingIconsAvailable::shared().list;
    case ItemState::charged:
        return ChargedIconsAvailable::shared().list;
    }
    Q_UNREACHABLE();
}

} // namespace ferrin
