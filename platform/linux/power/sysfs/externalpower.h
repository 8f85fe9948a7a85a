// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <optional>

namespace ferrin {

/// Whether the machine gets power from outside. This is the only place that decides it; everyone
/// else asks the registry, which calls this once for each reading.
///
/// - Any supply that powers the system and is online (`online` is not 0; some drivers report 2)
///   says yes. A battery may still discharge then: a weak charger, or a controller that waits.
/// - If several supplies of type Mains disagree, one of them always reports the same value. Then
///   the batteries decide: while one discharges and none charges, there is no external power. So
///   they do where only a USB port says yes and the mains adapter no, because ports have been seen
///   to stay online after they were unplugged.
/// - A battery that charges while none discharges is fed by something, whatever the supplies say.
/// - Without a supply that reports `online`, the batteries' status decides: Charging, Full and Not
///   charging happen on external power only, Discharging only without.
///
/// Absent when no supply and no battery says anything.
///
/// The attributes: https://www.kernel.org/doc/Documentation/ABI/testing/sysfs-class-power
[[nodiscard]] std::optional<bool> externalConnected(const PowerSupplies &supplies);

} // namespace ferrin
