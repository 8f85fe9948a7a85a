// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/upowerdevice.h"

#include <QList>
#include <QVariantMap>

#include <optional>

namespace ferrin {

/// Which way the energy of a source flows, and so which of its two times means something.
enum class PowerFlow { Discharging, Charging, Resting };

/// The flow that UPower's figures tell of. `onBattery` is the daemon's own word on the machine, and
/// only decides where the source's state says nothing.
[[nodiscard]] PowerFlow flowOf(const UPowerDevice &device, std::optional<bool> onBattery);

/// The flow right after the adapter came or went, while UPower's figures may still be the old ones.
/// `onExternalPower` is absent when only the machine woke.
[[nodiscard]] PowerFlow settlingFlowOf(const UPowerDevice &device, std::optional<bool> onBattery,
                                       std::optional<bool> onExternalPower);

/// The facts of one power source under the power-sources service's keys, plain values all. A fact
/// that is not known has no key. Times are minutes: -1 while the service cannot say yet, 0 in the
/// direction that does not apply; a source at rest has 0 in both.
[[nodiscard]] QVariantMap describe(const UPowerDevice &device, std::optional<bool> onBattery);

/// The same description while its time settles: -1 in the direction of the flow.
[[nodiscard]] QVariantMap describeSettling(QVariantMap description, PowerFlow flow);

/// The power sources in the order in which they are told: batteries before others, and the pack
/// in use before those that wait for their turn, since packs work one after the other and only the
/// one in use has a time; of several that seem to be in use, those with a time come first.
/// Otherwise the order of the list stands.
[[nodiscard]] QList<UPowerDevice> powerSourcesInOrder(const QList<UPowerDevice> &devices,
                                                      std::optional<bool> onBattery);

} // namespace ferrin
