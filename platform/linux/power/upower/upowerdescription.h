// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/upowerdevice.h"

#include <QList>
#include <QVariantMap>

#include <optional>

namespace ferrin {

/// Which way the energy of a source flows, and so which of its two times applies.
enum class PowerFlow { Discharging, Charging, Resting };

/// The direction by UPower's figures. `externalPower` is the kernel's answer for the whole machine;
/// it only decides where the source's state and times say nothing.
[[nodiscard]] PowerFlow flowOf(const UPowerDevice &device, std::optional<bool> externalPower);

/// The direction right after plugging in or unplugging, while UPower's figures may still be the old
/// ones. `changedTo` is absent when the machine only woke.
[[nodiscard]] PowerFlow settlingFlowOf(const UPowerDevice &device,
                                       std::optional<bool> externalPower,
                                       std::optional<bool> changedTo);

/// One power source under the power-sources service's keys. A value that is not known has no key.
/// Times are minutes: -1 while the service is still estimating, 0 in the direction that does not
/// apply; a source at rest has 0 in both.
[[nodiscard]] QVariantMap describe(const UPowerDevice &device, std::optional<bool> externalPower);

/// The same description during the settling period: -1 in the direction of the flow.
[[nodiscard]] QVariantMap describeSettling(QVariantMap description, PowerFlow flow);

/// The power sources in the order of the snapshot: batteries before others, and the pack in use
/// before those that wait for their turn, since packs work one after the other and only the one in
/// use has a time; of several that seem to be in use, those with a time come first. Otherwise the
/// order of the list is kept.
[[nodiscard]] QList<UPowerDevice> powerSourcesInOrder(const QList<UPowerDevice> &devices,
                                                      std::optional<bool> externalPower);

} // namespace ferrin
