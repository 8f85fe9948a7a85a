// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/adapterdetails.h"

#include "platform/linux/power/sysfs/attributetext.h"
#include "sources/smartbatterykey.h"

#include <algorithm>

namespace ferrin {

namespace {

constexpr qint64 leastMillivolts = 5'000;
constexpr qint64 greatestMillivolts = 48'000;
constexpr qint64 greatestMilliamps = 5'000;
// What stands in the attributes before there is a contract, give or take what was measured.
constexpr qint64 defaultMillivolts = 5'500;
constexpr qint64 greatestMilliwatts = 500'000;

Reading milli(Reading micro)
{
    return micro ? Reading(*micro / 1000) : std::nullopt;
}

bool isOnline(const AdapterSupply &adapter)
{
    return adapter.online.value_or(0) != 0;
}

bool isTypeC(std::string_view usbType)
{
    return usbType == "C" || usbType.starts_with("PD");
}

// Mains are online and the USB ports, which this machine does tell of, are not: what a port's
// partner offers is not what feeds the machine.
bool isBarrel(const std::vector<AdapterSupply> &adapters)
{
    bool mains = false;
    bool ports = false;
    bool fedByPort = false;
    for (const AdapterSupply &adapter : adapters) {
        const bool isPort = adapter.type == SupplyType::Usb;
        mains |= adapter.type == SupplyType::Mains && isOnline(adapter);
        ports |= isPort;
        fedByPort |= isPort && isOnline(adapter);
    }
    return mains && ports && !fedByPort;
}

std::optional<Offer> statedMaximum(const AdapterSupply &adapter)
{
    const Reading volts = milli(adapter.voltageMax ? adapter.voltageMax : adapter.voltageMaxDesign);
    const std::optional<Offer> offer = plausibleOffer(volts, milli(adapter.currentMax));
    // A maximum below what flows is another profile's; a measured voltage may be a little above.
    if (offer && milli(adapter.voltageNow).value_or(0) > offer->millivolts * 21 / 20)
        return std::nullopt;
    return offer;
}

Reading wattsOf(const std::vector<AdapterSupply> &adapters, const AdapterHints &hints,
                const std::optional<Offer> &offer)
{
    if (offer)
        return offer->watts();
    Reading milliwatts = hints.ratedMilliwatts;
    for (const AdapterSupply &adapter : adapters) {
        if (isOnline(adapter) && adapter.inputPowerLimit && !milliwatts)
            milliwatts = *adapter.inputPowerLimit / 1000;
    }
    if (!milliwatts || *milliwatts < 1'000 || *milliwatts > greatestMilliwatts)
        return std::nullopt;
    return (*milliwatts + 500) / 1000;
}

// Some controllers give the partner's USB ids in the place of its names.
bool isUsbId(const QString &name)
{
    return name.size() >= 3 && name.size() <= 4
        && std::all_of(name.begin(), name.end(), [](QChar digit) {
               return digit.isDigit() || (digit >= u'a' && digit <= u'f');
           });
}

void insertName(QVariantMap &details, const QString &key, const QString &name)
{
    if (!name.isEmpty() && !isUsbId(name))
        details.insert(key, name);
}

} // namespace

qint64 Offer::watts() const noexcept
{
    return (millivolts * milliamps + 500'000) / 1'000'000;
}

std::optional<Offer> plausibleOffer(Reading millivolts, Reading milliamps) noexcept
{
    if (!millivolts || !milliamps || *millivolts < leastMillivolts
        || *millivolts > greatestMillivolts || *milliamps <= 0 || *milliamps > greatestMilliamps)
        return std::nullopt;
    return Offer { *millivolts, *milliamps };
}

std::optional<Offer> offerOf(const AdapterSupply &adapter, const PortPartner &partner) noexcept
{
    const std::string_view usbType = chosenWord(adapter.usbType);
    const bool mayDescribeAdapter = adapter.usbType.empty() || isTypeC(usbType);
    if (!isOnline(adapter) || !mayDescribeAdapter)
        return std::nullopt;
    std::optional<Offer> inUse;
    if (isTypeC(usbType))
        inUse = plausibleOffer(milli(adapter.voltageNow), milli(adapter.currentNow));
    if (inUse && inUse->millivolts > defaultMillivolts)
        return inUse;
    if (partner.greatest && adapter.type == SupplyType::Usb)
        return partner.greatest;
    const std::optional<Offer> maximum = statedMaximum(adapter);
    return maximum ? maximum : inUse;
}

QVariantMap adapterDetails(const std::vector<AdapterSupply> &adapters, const AdapterHints &hints)
{
    QVariantMap details;
    const AdapterSupply *best = nullptr;
    std::optional<Offer> offer;
    for (const AdapterSupply &adapter : adapters) {
        const std::optional<Offer> candidate = offerOf(adapter, hints.partner);
        const bool better = candidate && (!offer || candidate->watts() > offer->watts());
        if (isOnline(adapter) && (!best || better))
            best = &adapter;
        if (better)
            offer = candidate;
    }
    if (!offer && !isBarrel(adapters))
        offer = hints.partner.greatest;
    if (const Reading watts = wattsOf(adapters, hints, offer))
        details.insert(rawValue(SmartBatteryKey::watts), *watts);
    if (offer) {
        details.insert(rawValue(SmartBatteryKey::adapterVoltage), offer->millivolts);
        details.insert(rawValue(SmartBatteryKey::current), offer->milliamps);
    }
    if (best) {
        insertName(details, rawValue(SmartBatteryKey::name), nameOf(best->modelName));
        insertName(details, rawValue(SmartBatteryKey::manufacturer), nameOf(best->manufacturer));
    }
    if (!details.contains(rawValue(SmartBatteryKey::manufacturer)) && !isBarrel(adapters))
        insertName(details, rawValue(SmartBatteryKey::manufacturer), hints.partnerMaker);
    return details;
}

} // namespace ferrin
