// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemcontent.h"

#include "core/batterydata.h"
#include "menubar/iconview.h"
#include "menubar/itemviews.h"
#include "state/displayswitches.h"
#include "state/settingsdata.h"

#include <QStringList>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

bool isCharged(BatteryChargingStatus status)
{
    switch (status) {
    case BatteryChargingStatus::charging:
    case BatteryChargingStatus::discharging:
        return false;
    case BatteryChargingStatus::charged:
    case BatteryChargingStatus::finishingCharge:
    case BatteryChargingStatus::unknown:
        return true;
    }
    Q_UNREACHABLE();
}

QString chargeTextOf(const BatteryData &data)
{
    const auto charge = data.charge();
    return charge ? QString::number(*charge) : u"??"_s;
}

QString timeTextOf(const BatteryData &data)
{
    const auto hours = data.timeRemaining().hours;
    return (hours ? QString::number(*hours) : u"?"_s) + u':' + data.timeRemainingMinutesText();
}

QString nameOf(BatteryChargingStatus status)
{
    if (isCharged(status))
        return u"Charged"_s;
    return status == BatteryChargingStatus::charging ? u"Charging"_s : u"Discharging"_s;
}

/// The seven mixes, in words of the views.
AnyView viewWithoutIcon(const ItemContent &content)
{
    if (content.charge && content.time)
        return MenuBarChargeTimeView { *content.charge, *content.time };
    if (content.charge)
        return MenuBarChargeView { *content.charge };
    return content.time ? AnyView(MenuBarTimeView { *content.time }) : AnyView();
}

AnyView viewWithIcon(const ItemContent &content, const AnyView &icon)
{
    if (content.charge && content.time)
        return MenuBarChargeTimeIconView { *content.charge, *content.time, icon };
    if (content.charge)
        return MenuBarChargeIconView { *content.charge, icon };
    return content.time ? AnyView(MenuBarTimeIconView { *content.time, icon })
                        : AnyView(MenuBarIconView { icon });
}

} // namespace

ItemElements switchedOnFor(BatteryChargingStatus status, const DisplaySwitches &switches)
{
    if (status == BatteryChargingStatus::discharging)
        return { switches.showIconWhenDischarging(), switches.showChargeWhenDischarging(),
                 switches.showTimeWhenDischarging() };
    if (status == BatteryChargingStatus::charging)
        return { switches.showIconWhenCharging(), switches.showChargeWhenCharging(),
                 switches.showTimeWhenCharging() };
    return { switches.showIconWhenCharged(), switches.showChargeWhenCharged(),
             switches.showTimeWhenCharged() };
}

Icon selectedIconFor(BatteryChargingStatus status, SettingsData &settings)
{
    // Through the bindables, which never write: this runs inside a binding.
    if (status == BatteryChargingStatus::discharging)
        return settings.bindableDischargingIconSelected().value();
    if (status == BatteryChargingStatus::charging)
        return settings.bindableChargingIconSelected().value();
    return settings.bindableChargedIconSelected().value();
}

ItemElements shownElements(BatteryChargingStatus status, ItemElements switchedOn)
{
    if (isCharged(status))
        return { switchedOn.icon, switchedOn.charge || !switchedOn.icon, false };
    if (switchedOn == ItemElements {})
        return { .time = true };
    return switchedOn;
}

ItemContent contentFor(const BatteryData &data, const DisplaySwitches &switches,
                       SettingsData &settings, bool connected)
{
    const BatteryChargingStatus status = data.chargingStatus();
    const ItemElements shown = shownElements(status, switchedOnFor(status, switches));

    ItemContent content { .status = status, .hasBattery = connected };
    if (shown.icon) {
        content.icon = IconElement { .charge = double(data.charge().value_or(50)),
                                     .status = status,
                                     .fault = !connected };
        if (connected)
            content.icon->icon = selectedIconFor(status, settings);
    }
    if (shown.charge)
        content.charge = isCharged(status) ? u"100"_s : chargeTextOf(data);
    if (shown.time)
        content.time = timeTextOf(data);
    return content;
}

AnyView viewFor(const IconElement &element)
{
    if (element.fault)
        return MenuBarBatteryFaultView { .charge = element.charge, .status = element.status };
    return IconView { .icon = element.icon, .charge = element.charge, .status = element.status };
}

AnyView viewFor(const ItemContent &content)
{
    return content.icon ? viewWithIcon(content, viewFor(*content.icon)) : viewWithoutIcon(content);
}

QString sentenceFor(const ItemContent &content)
{
    if (!content.hasBattery)
        return u"No battery"_s;
    QStringList parts;
    if (content.charge)
        parts << *content.charge + u'%';
    if (content.time)
        parts << *content.time
                + (content.status == BatteryChargingStatus::charging ? u" to full"_s
                                                                     : u" to empty"_s);
    return parts.isEmpty() ? nameOf(content.status) : parts.join(u", "_s);
}

} // namespace ferrin
