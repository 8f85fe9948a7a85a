// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemcontent.h"

#include "core/batterydata.h"
#include "core/itemstateof.h"
#include "menubar/iconview.h"
#include "menubar/itemviews.h"
#include "state/displayswitches.h"
#include "state/settingsdata.h"

#include <QStringList>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

QString textOf(std::optional<qint64> charge)
{
    return charge ? QString::number(*charge) : u"??"_s;
}

/// A full battery is at 100 whatever the gauge says; one that is held is where it is, and where
/// neither state nor charge is known nothing is claimed.
QString restingChargeText(BatteryChargingStatus status, const BatteryData &data)
{
    if (status == BatteryChargingStatus::held)
        return textOf(data.charge());
    const bool isKnown = status != BatteryChargingStatus::unknown || data.charge().has_value();
    return isKnown ? u"100"_s : textOf(std::nullopt);
}

QString timeTextOf(const BatteryData &data)
{
    const auto hours = data.timeRemaining().hours;
    return (hours ? QString::number(*hours) : u"?"_s) + u':' + data.timeRemainingMinutesText();
}

QString nameOf(BatteryChargingStatus status)
{
    switch (status) {
    case BatteryChargingStatus::charging:
        return u"Charging"_s;
    case BatteryChargingStatus::discharging:
        return u"Discharging"_s;
    case BatteryChargingStatus::charged:
    case BatteryChargingStatus::finishingCharge:
        return u"Charged"_s;
    case BatteryChargingStatus::unknown:
        return u"Battery state unknown"_s;
    case BatteryChargingStatus::held:
        return u"Not charging"_s;
    }
    Q_UNREACHABLE();
}

QString heldSentence(const ItemContent &content)
{
    const QString why = content.heldAtLimit ? u"held at its limit"_s : u"not charging"_s;
    if (content.charge)
        return *content.charge + u"%, "_s + why;
    return content.heldAtLimit ? u"Held at its limit"_s : nameOf(content.status);
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

ItemElements switchedOnFor(ItemState state, const DisplaySwitches &switches)
{
    const auto [icon, charge, time] = switchesOf(state);
    return { switches.isOn(icon), switches.isOn(charge), switches.isOn(time) };
}

ItemElements shownElements(ItemState state, ItemElements switchedOn)
{
    if (state == ItemState::charged)
        return { switchedOn.icon, switchedOn.charge || !switchedOn.icon, false };
    if (switchedOn == ItemElements {})
        return { .time = true };
    return switchedOn;
}

// What decides how much is read is read first, and once. Where a binding of Qt 6.4 reads more at a
// change than before, its fifth and further dependencies move in memory, and the one that reported
// the change must not be among them.
ItemContent contentFor(const BatteryData &data, const DisplaySwitches &switches,
                       SettingsData &settings, bool connected)
{
    const BatteryChargingStatus status = data.chargingStatus();
    const ItemState state = itemStateOf(status);
    const ItemElements shown = shownElements(state, switchedOnFor(state, switches));

    ItemContent content { .status = status, .hasBattery = connected };
    if (shown.icon) {
        content.icon = IconElement { .charge = double(data.charge().value_or(50)),
                                     .status = status,
                                     .fault = !connected };
        if (connected)
            content.icon->icon = bindableIconSelected(state, settings).value();
    }
    if (shown.charge)
        content.charge
            = state == ItemState::charged ? restingChargeText(status, data) : textOf(data.charge());
    if (shown.time)
        content.time = timeTextOf(data);
    content.heldAtLimit = status == BatteryChargingStatus::held && data.chargeLimit().has_value();
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
    if (content.status == BatteryChargingStatus::held)
        return heldSentence(content);
    if (content.charge == u"??"_s && content.status == BatteryChargingStatus::unknown)
        return nameOf(content.status);
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
