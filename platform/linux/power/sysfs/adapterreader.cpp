// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/adapterreader.h"

#include "platform/linux/power/sysfs/attributedirectory.h"
#include "platform/linux/power/sysfs/attributetext.h"

#include <charconv>

namespace ferrin {

namespace {

constexpr std::string_view partnerSuffix = "-partner";

// The partner of a port that gives power is a device, not an adapter.
bool takesPower(const AttributeDirectory &ports, const std::string &port)
{
    AttributeDirectory::Buffer buffer;
    const std::string_view role = ports.read((port + "/power_role").c_str(), buffer);
    return chosenWord(role) == "sink" || role == "sink";
}

std::optional<Offer> greatestFixedOffer(const AttributeDirectory &partner)
{
    const AttributeDirectory offers = partner.child("usb_power_delivery/source-capabilities");
    std::optional<Offer> greatest;
    AttributeDirectory::Buffer buffer;
    for (const std::string &name : offers.entries()) {
        if (!name.ends_with(":fixed_supply"))
            continue;
        const AttributeDirectory fixed = offers.child(name.c_str());
        const Reading volts = numberWithUnit(fixed.read("voltage", buffer), "mV");
        const Reading amps = numberWithUnit(fixed.read("maximum_current", buffer), "mA");
        const std::optional<Offer> offer = plausibleOffer(volts, amps);
        if (offer && (!greatest || offer->watts() > greatest->watts()))
            greatest = offer;
    }
    return greatest;
}

// The low 16 bits of the hexadecimal ID header; 0 means that the partner was not asked for it.
std::optional<std::uint16_t> vendorOf(const AttributeDirectory &partner)
{
    AttributeDirectory::Buffer buffer;
    std::string_view header = partner.read("identity/id_header", buffer);
    if (header.starts_with("0x"))
        header.remove_prefix(2);
    std::uint32_t bits = 0;
    const char *end = header.data() + header.size();
    const auto [position, error] = std::from_chars(header.data(), end, bits, 16);
    const auto vendor = static_cast<std::uint16_t>(bits & 0xffff);
    if (header.empty() || error != std::errc() || position != end || vendor == 0)
        return std::nullopt;
    return vendor;
}

} // namespace

AdapterReader::AdapterReader(const std::string &root)
    : m_ports(root + "/class/typec")
    , m_rating(root + "/bus/platform/devices/INT3407:00/dptf_power")
{
}

AdapterHints AdapterReader::read() const
{
    AdapterHints hints;
    AttributeDirectory::Buffer buffer;
    const AttributeDirectory rating(m_rating.c_str());
    hints.ratedMilliwatts = numberOf(rating.read("adapter_rating_mw", buffer));
    if (hints.ratedMilliwatts.value_or(0) <= 0)
        hints.ratedMilliwatts.reset();
    const AttributeDirectory ports(m_ports.c_str());
    for (const std::string &name : ports.entries()) {
        if (!name.ends_with(partnerSuffix)
            || !takesPower(ports, name.substr(0, name.size() - partnerSuffix.size())))
            continue;
        const AttributeDirectory directory = ports.child(name.c_str());
        const PortPartner partner { greatestFixedOffer(directory), vendorOf(directory) };
        const PortPartner &best = hints.partner;
        const bool greater = partner.greatest
            && (!best.greatest || partner.greatest->watts() > best.greatest->watts());
        if (greater || (!best.greatest && !best.vendor))
            hints.partner = partner;
    }
    return hints;
}

} // namespace ferrin
