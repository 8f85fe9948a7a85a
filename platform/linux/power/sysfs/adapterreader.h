// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/adapterdetails.h"

#include <string>

namespace ferrin {

/// Reads what is known of the adapter outside the power-supply class: the USB-C partners of the
/// ports that take power, and the firmware's rating. Used only on external power.
class AdapterReader
{
public:
    /// The root of sysfs.
    explicit AdapterReader(const std::string &root);

    /// Of several ports the one with the most powerful offer. `partnerMaker` stays empty; sysfs
    /// does not know it.
    [[nodiscard]] AdapterHints read() const;

private:
    std::string m_ports;
    std::string m_rating;
};

} // namespace ferrin
