// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <string>

namespace ferrin {

/// Reads the kernel's power supplies. `type` and `scope` decide which of them power the system,
/// never the name; of the others, such as the battery of a mouse, no other attribute is read.
/// Stateless.
class SupplyReader
{
public:
    /// The root of sysfs, usually "/sys".
    explicit SupplyReader(std::string root);

    /// The attributes that may change from one refresh to the next; each file is read once. Details
    /// of an adapter are read only while it is online.
    [[nodiscard]] PowerSupplies read() const;

    /// The slow attributes of these batteries, in the same order.
    [[nodiscard]] std::vector<BatteryRecord>
    readRecords(const std::vector<BatterySupply> &batteries) const;

private:
    std::string m_supplies;
};

} // namespace ferrin
