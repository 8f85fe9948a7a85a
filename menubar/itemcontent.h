// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "menubar/view.h"
#include "state/icon.h"
#include "state/itemstate.h"

#include <QString>

#include <optional>

namespace ferrin {

class BatteryData;
class DisplaySwitches;
class SettingsData;

/// The icon element of the item: the user's icon at a charge, or the crossed-out battery.
struct IconElement
{
    Icon icon = Icon::battery1V;
    /// Percent, 0 to 100; 50 when the charge is unknown.
    double charge = 50;
    BatteryChargingStatus status = BatteryChargingStatus::unknown;
    /// The registry reader has no battery service: the fault view stands in for the icon.
    bool fault = false;

    bool operator==(const IconElement &) const = default;
};

/// What the item shows now, in the user's own mix: at most an icon, a charge and a time. How a host
/// gets it (the two-line view itself, one line, a square, a label) is the platform's business;
/// every form is painted from these elements.
struct ItemContent
{
    BatteryChargingStatus status = BatteryChargingStatus::unknown;
    std::optional<IconElement> icon = {};
    /// "37", "??", without the percent sign.
    std::optional<QString> charge = {};
    /// "4:29", "?:??".
    std::optional<QString> time = {};
    /// The machine has a battery service.
    bool hasBattery = true;
    /// The battery is held, and at a limit that is known.
    bool heldAtLimit = false;

    bool operator==(const ItemContent &) const = default;
};

/// Some of the three elements: those that the switches of a battery state let through, or those
/// that are shown.
struct ItemElements
{
    bool icon = false;
    bool charge = false;
    bool time = false;

    bool operator==(const ItemElements &) const = default;
};

/// What the user switched on for this state.
[[nodiscard]] ItemElements switchedOnFor(ItemState state, const DisplaySwitches &switches);

/// What is shown where these elements are switched on. Without any, the time is shown while the
/// battery is charging or discharging. Once it is charged the time is never shown, and without an
/// icon the charge is.
[[nodiscard]] ItemElements shownElements(ItemState state, ItemElements switchedOn);

/// What the item shows now. Reads no more of the snapshot, the settings and the switches than it
/// shows, so that a binding over it is evaluated again only when that changes. `connected`: the
/// registry reader has found its battery service.
[[nodiscard]] ItemContent contentFor(const BatteryData &data, const DisplaySwitches &switches,
                                     SettingsData &settings, bool connected);

/// The one of the eight views that the elements call for; the wide two-line form is this view.
[[nodiscard]] AnyView viewFor(const ItemContent &content);

/// The view of the icon element alone.
[[nodiscard]] AnyView viewFor(const IconElement &element);

/// What the item shows, in words: charge then time, only those that are shown ("37%, 4:29 to
/// empty", "78%, 0:52 to full", "100%", "80%, held at its limit"); with the icon alone the state
/// ("Discharging"); "Battery state unknown" where not even the charge is known; "No battery"
/// without a battery service.
[[nodiscard]] QString sentenceFor(const ItemContent &content);

} // namespace ferrin
