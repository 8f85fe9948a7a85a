// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/adapterdetails.h"

#include <string>

namespace ferrin {

/// Reads what stands outside the power-supply class about the adapter: the USB-C partners of the
/// ports that take power, and the firmware's rating. It is asked only while external power is
/// there.
class AdapterReader
{
public:
    /// The root of sysfs.
    explicit AdapterReader(const std::string &root);

    /// Without the maker's name, which is no fact of sysfs. Of several ports the one with the
    /// greatest offer.
    [[nodiscard]] AdapterHints read() const;

private:
    std::string m_ports;
    std::string m_rating;
};

} // namespace ferrin
