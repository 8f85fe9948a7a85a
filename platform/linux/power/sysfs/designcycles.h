// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ferrin {

/// Who made the machine, as its firmware says; texts are empty where it does not.
struct MachineIdentity
{
    QString vendor;
    QString product;
    /// Absent on machines without this kind of firmware.
    std::optional<qint64> chassisType;

    bool operator==(const MachineIdentity &) const = default;
};

/// Reads the identity under the root of sysfs: the DMI tables, else the device tree's model.
[[nodiscard]] MachineIdentity readMachineIdentity(const std::string &root);

/// How many charge cycles the maker says that this machine's battery is designed for, by a table
/// with a source for each row (resources/designcycles.json). Machines without a row get the number
/// to which notebook batteries are certified; machines that are no notebooks get none.
[[nodiscard]] std::optional<qint64> designCycles(const MachineIdentity &machine,
                                                 const QByteArray &table);

/// The table that is compiled in.
[[nodiscard]] QByteArray designCyclesTable();

} // namespace ferrin
