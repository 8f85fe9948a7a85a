// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/powersupply.h"

#include <QString>
#include <QVariantMap>

#include <vector>

namespace ferrin {

/// A pair of voltage and current that a power supply offers.
struct Offer
{
    qint64 millivolts = 0;
    qint64 milliamps = 0;

    /// Rounded to whole watts.
    [[nodiscard]] qint64 watts() const noexcept;
    bool operator==(const Offer &) const = default;
};

/// What the USB-C ports that take power know of the other end of the cable.
/// https://www.kernel.org/doc/Documentation/ABI/testing/sysfs-class-typec
struct PortPartner
{
    /// The most powerful of the partner's fixed offers.
    std::optional<Offer> greatest;
    /// The partner's USB vendor ID; absent when it reports none.
    std::optional<std::uint16_t> vendor;

    bool operator==(const PortPartner &) const = default;
};

/// What is known of the adapter from outside the power-supply class.
struct AdapterHints
{
    PortPartner partner;
    /// The firmware's rating of the adapter, mW.
    Reading ratedMilliwatts;
    /// The name of partner.vendor, or empty.
    QString partnerMaker;

    bool operator==(const AdapterHints &) const = default;
};

/// Absent outside of 5...48 V and 0...5 A, the range of USB Power Delivery: the attributes then
/// describe something else.
[[nodiscard]] std::optional<Offer> plausibleOffer(Reading millivolts, Reading milliamps) noexcept;

/// The best known offer of an online supply, the first of these that exists:
/// 1. the pair in use, if its voltage is above the 5 V that are reported without a power contract;
/// 2. the partner's most powerful fixed offer;
/// 3. the maximum that the supply reports, unless its present voltage exceeds it;
/// 4. the pair in use at 5 V.
/// Absent for a charger chip (USB type neither C nor PD), which reports the host's limits.
[[nodiscard]] std::optional<Offer> offerOf(const AdapterSupply &adapter,
                                           const PortPartner &partner) noexcept;

/// The dictionary "AdapterDetails": "Watts" (W), "Current" (mA), "AdapterVoltage" (mV), "Name" and
/// "Manufacturer", each only if known. It describes the online supply with the most powerful offer;
/// that of a plain ACPI adapter, which reports nothing but `online`, is empty.
[[nodiscard]] QVariantMap adapterDetails(const std::vector<AdapterSupply> &adapters,
                                         const AdapterHints &hints);

} // namespace ferrin
