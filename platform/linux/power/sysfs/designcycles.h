// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ferrin {

/// The maker and the model of the machine, as its firmware reports them; empty when it does not.
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

/// The number of charge cycles that the battery is designed for, from a table of the makers'
/// figures (resources/designcycles.json, with a source for each row). Notebooks without a row get
/// the number to which notebook batteries are certified; absent for other machines.
[[nodiscard]] std::optional<qint64> designCycles(const MachineIdentity &machine,
                                                 const QByteArray &table);

/// The content of the compiled-in table.
[[nodiscard]] QByteArray designCyclesTable();

} // namespace ferrin
