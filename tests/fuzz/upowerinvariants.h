// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/upowerdevice.h"

#include <QList>

#include <optional>

namespace ferrin::fuzz {

/// Ends the process unless what is made of the devices can be true: charge and times in their
/// range, at most one time a source, batteries first.
void checkPowerSources(const QList<UPowerDevice> &devices, std::optional<bool> external);

} // namespace ferrin::fuzz
