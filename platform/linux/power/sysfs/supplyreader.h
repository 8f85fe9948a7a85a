// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <string>

namespace ferrin {

/// Reads the kernel's power supplies. Type and scope are read first and decide: a supply's name
/// says nothing, a mouse is a battery too, and of what does not power the system no other file is
/// opened. Keeps nothing between two readings.
class SupplyReader
{
public:
    /// The root of sysfs, usually "/sys".
    explicit SupplyReader(std::string root);

    /// What may change from one refresh to the next, each file read once. Details of an adapter are
    /// read only while it is online.
    [[nodiscard]] PowerSupplies read() const;

    /// The slow facts of these batteries, in their order.
    [[nodiscard]] std::vector<BatteryRecord>
    readRecords(const std::vector<BatterySupply> &batteries) const;

private:
    std::string m_supplies;
};

} // namespace ferrin
