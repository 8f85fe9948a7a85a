// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "core/batterytypes.h"
#include "menubar/view.h"

#include <QString>

namespace ferrin {

/// The eight views of the item: the seven mixes of charge, time and icon, and the fault image. The
/// charge comes without its percent sign, which is a text of its own.
struct MenuBarChargeView
{
    QString charge;

    bool operator==(const MenuBarChargeView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct MenuBarTimeView
{
    QString time;

    bool operator==(const MenuBarTimeView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct MenuBarIconView
{
    AnyView icon;

    bool operator==(const MenuBarIconView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

/// Two lines, the charge above the time.
struct MenuBarChargeTimeView
{
    QString charge;
    QString time;

    bool operator==(const MenuBarChargeTimeView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct MenuBarTimeIconView
{
    QString time;
    AnyView icon;

    bool operator==(const MenuBarTimeIconView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct MenuBarChargeIconView
{
    QString charge;
    AnyView icon;

    bool operator==(const MenuBarChargeIconView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

struct MenuBarChargeTimeIconView
{
    QString charge;
    QString time;
    AnyView icon;

    bool operator==(const MenuBarChargeTimeIconView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

/// A crossed-out battery: the machine's battery service cannot be reached.
struct MenuBarBatteryFaultView
{
    /// Percent, 0 to 100.
    double charge = 50;
    BatteryChargingStatus status = BatteryChargingStatus::unknown;

    bool operator==(const MenuBarBatteryFaultView &) const = default;
    [[nodiscard]] AnyView body(const ViewContext &context) const;
};

} // namespace ferrin
