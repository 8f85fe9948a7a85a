// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <QString>
#include <QVariantMap>

#include <vector>

namespace ferrin {

/// Volts times amps that somebody offers.
struct Offer
{
    qint64 millivolts = 0;
    qint64 milliamps = 0;

    /// Rounded to whole watts.
    [[nodiscard]] qint64 watts() const noexcept;
    bool operator==(const Offer &) const = default;
};

/// What the USB-C ports that take power know of who is at the other end.
struct PortPartner
{
    /// The greatest of the partner's fixed offers.
    std::optional<Offer> greatest;
    /// The USB vendor that the partner names; absent when it names none.
    std::optional<std::uint16_t> vendor;

    bool operator==(const PortPartner &) const = default;
};

/// Other places that state an adapter's power.
struct AdapterHints
{
    PortPartner partner;
    /// What the firmware says of the adapter as a whole, mW.
    Reading ratedMilliwatts;
    /// The maker of partner.vendor, or empty.
    QString partnerMaker;

    bool operator==(const AdapterHints &) const = default;
};

/// 5...48 V and above 0 to 5 A, the range of what can come over a USB-C cable; everything else is a
/// misread description of an adapter.
[[nodiscard]] std::optional<Offer> plausibleOffer(Reading millivolts, Reading milliamps) noexcept;

/// What an online supply itself lets us conclude:
/// 1. the pair in use, when a power contract above the 5 V that stand there by default is in force;
/// 2. the greatest of the partner's fixed offers;
/// 3. the greatest pair that the supply states, unless its present voltage is above that;
/// 4. the pair in use at 5 V.
/// A charger chip (USB type not C or PD) speaks of the host's limits, not of the adapter: no pair.
[[nodiscard]] std::optional<Offer> offerOf(const AdapterSupply &adapter,
                                           const PortPartner &partner) noexcept;

/// The dictionary "AdapterDetails": "Watts" (W), "Current" (mA), "AdapterVoltage" (mV), "Name" and
/// "Manufacturer", each only where known. It is of the online supply with the greatest offer; a
/// plain ACPI adapter only knows that it is there, and its dictionary is empty.
[[nodiscard]] QVariantMap adapterDetails(const std::vector<AdapterSupply> &adapters,
                                         const AdapterHints &hints);

} // namespace ferrin
