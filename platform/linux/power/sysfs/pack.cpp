// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/pack.h"

#include <algorithm>
#include <cstdlib>

namespace ferrin {

namespace {

constexpr qint64 million = 1'000'000;
// µV: one cell that is nearly empty, and more than any notebook's pack has.
constexpr qint64 leastVoltage = 2'500'000;
constexpr qint64 greatestVoltage = 60'000'000;
constexpr qint64 nominalCellVoltage = 3'700'000;
// µWh, µAh and µW or µA. Saturated registers are far above, and products with a voltage fit 64
// bits.
constexpr qint64 greatestEnergy = 1'000 * million;
constexpr qint64 greatestCharge = 100 * million;
constexpr qint64 greatestRate = 10'000 * million;
constexpr qint64 longestTime = qint64 { 48 } * 3600;
// A saturated 16-bit register, in any unit.
constexpr qint64 endlessTime = 65'535;
// A tenth of a small phone's battery; a smaller value was counted in another unit.
constexpr qint64 leastMilliampHours = 100;
// In percent. Some firmware rounds up to 111.
constexpr qint64 greatestCapacity = 120;
// In percent of full; a gauge that reads more counts `now` in another unit.
constexpr qint64 greatestShare = 110;
// In percent; how far now/full may be from the kernel's capacity.
constexpr qint64 greatestShareError = 25;

Reading within(Reading value, qint64 least, qint64 greatest)
{
    return value && *value >= least && *value <= greatest ? value : std::nullopt;
}

Reading voltageOf(const BatterySupply &battery)
{
    if (const Reading design = within(battery.voltageMinDesign, leastVoltage, greatestVoltage))
        return design;
    return within(battery.voltageNow, leastVoltage, greatestVoltage);
}

Reading magnitude(Reading value)
{
    const Reading bounded = within(value, -greatestRate, greatestRate);
    return bounded ? Reading(std::abs(*bounded)) : std::nullopt;
}

// A gauge with a saturated voltage register measures nothing; its other values are noise, too.
bool isSaturated(const BatterySupply &battery)
{
    return battery.voltageNow > greatestVoltage;
}

// µAh × µV is pWh, µA × µV is pW.
Reading times(Reading charge, qint64 voltage)
{
    return charge ? Reading(*charge * voltage / million) : std::nullopt;
}

qint64 rounded(qint64 dividend, qint64 divisor)
{
    return (dividend + divisor / 2) / divisor;
}

Reading milliampHours(const BatterySupply &battery, Reading charge, Reading energy)
{
    if (isSaturated(battery))
        return std::nullopt;
    const Reading voltage = voltageOf(battery);
    charge = within(charge, 1, greatestCharge);
    energy = within(energy, 1, greatestEnergy);
    Reading full;
    if (charge)
        full = rounded(*charge, 1000);
    else if (energy && voltage)
        full = rounded(*energy * 1000, *voltage);
    return full >= leastMilliampHours ? full : std::nullopt;
}

struct Family
{
    Reading now;
    Reading full;
    Reading rate;
};

Family familyOf(const BatterySupply &battery, qint64 voltage)
{
    const Reading power = magnitude(battery.powerNow);
    const Reading current = magnitude(battery.currentNow);
    const Reading energyFull = within(battery.energyFull, 1, greatestEnergy);
    const Reading chargeFull = within(battery.chargeFull, 1, greatestCharge);
    if (energyFull || !chargeFull) {
        // A current beside energies: power is its product with the present voltage.
        const Reading present = within(battery.voltageNow, leastVoltage, greatestVoltage);
        return { within(battery.energyNow, 0, 100 * greatestEnergy), energyFull,
                 power ? power : times(current, present.value_or(voltage)) };
    }
    // The same voltage for charge and current, so that it cancels out in their quotient.
    return { times(within(battery.chargeNow, 0, 100 * greatestCharge), voltage),
             times(chargeFull, voltage), current ? times(current, voltage) : power };
}

// In percent of full; absent when either is missing or `now` is no measure of it.
Reading shareOf(const Family &family)
{
    if (!family.now || !family.full || *family.now * 100 > *family.full * greatestShare)
        return std::nullopt;
    return *family.now * 100 / *family.full;
}

std::optional<int> percentOf(const BatterySupply &battery, const Family &family)
{
    const Reading share = shareOf(family);
    Reading capacity = within(battery.capacity, 0, greatestCapacity);
    if (capacity == 0 && share.value_or(0) > 3)
        capacity.reset();
    const Reading percent = capacity ? capacity : share;
    return percent ? std::optional(static_cast<int>(std::min<qint64>(*percent, 100)))
                   : std::nullopt;
}

Reading trustedNow(const Family &family, std::optional<int> percent)
{
    if (!family.full)
        return std::nullopt;
    const Reading share = shareOf(family);
    if (share && (!percent || std::abs(*share - *percent) <= greatestShareError))
        return std::min(*family.now, *family.full);
    return percent ? Reading(*family.full * *percent / 100) : std::nullopt;
}

Reading knownTime(Reading seconds)
{
    return seconds == endlessTime ? std::nullopt : within(seconds, 1, longestTime);
}

// The average is preferred, because it is steadier.
Reading timeOf(Reading average, Reading now)
{
    const Reading settled = knownTime(average);
    return settled ? settled : knownTime(now);
}

bool isDrained(const BatterySupply &battery)
{
    const Reading design = within(battery.voltageMinDesign, leastVoltage, greatestVoltage);
    const Reading now = within(battery.voltageNow, leastVoltage, greatestVoltage);
    return battery.capacityLevel == "Critical" || (design && now && *now < *design);
}

// Requires a full capacity of 0; a missing attribute proves nothing.
bool isPhantom(const BatterySupply &battery, const Pack &pack)
{
    const bool saysZero = battery.energyFull == 0 || battery.chargeFull == 0;
    return saysZero && !pack.full && pack.percent.value_or(0) == 0
        && battery.voltageNow.value_or(0) == 0;
}

Pack packOf(const BatterySupply &battery, qint64 voltage)
{
    const Family family = isSaturated(battery) ? Family() : familyOf(battery, voltage);
    Pack pack;
    pack.status = battery.status;
    pack.percent = percentOf(battery, family);
    pack.full = family.full;
    pack.rate = family.rate;
    pack.fullMilliampHours = milliampHours(battery, battery.chargeFull, battery.energyFull);
    pack.timeToEmpty = timeOf(battery.timeToEmptyAverage, battery.timeToEmptyNow);
    pack.timeToFull = timeOf(battery.timeToFullAverage, battery.timeToFullNow);
    pack.drained = isDrained(battery);
    pack.phantom = isPhantom(battery, pack);
    if (pack.percent == 0 && battery.voltageNow == 0)
        pack.percent.reset();
    else
        pack.now = trustedNow(family, pack.percent);
    return pack;
}

} // namespace

std::vector<Pack> packsOf(const std::vector<BatterySupply> &batteries)
{
    // A pack of unknown voltage is assumed to be like its neighbour.
    qint64 usual = nominalCellVoltage;
    for (const BatterySupply &battery : batteries)
        usual = voltageOf(battery).value_or(usual);
    std::vector<Pack> packs;
    packs.reserve(batteries.size());
    for (const BatterySupply &battery : batteries)
        packs.push_back(packOf(battery, voltageOf(battery).value_or(usual)));
    return packs;
}

Reading designMilliampHours(const BatterySupply &battery, const BatteryRecord &record)
{
    return milliampHours(battery, record.chargeFullDesign, record.energyFullDesign);
}

std::optional<int> healthPercent(const BatterySupply &battery, const BatteryRecord &record)
{
    Reading full = within(battery.energyFull, 1, greatestEnergy);
    Reading design = within(record.energyFullDesign, 1, greatestEnergy);
    if (!full || !design) {
        full = within(battery.chargeFull, 1, greatestCharge);
        design = within(record.chargeFullDesign, 1, greatestCharge);
    }
    if (isSaturated(battery) || !full || !design || *full == *design || *full * 2 > *design * 3)
        return std::nullopt;
    return static_cast<int>(std::min<qint64>(*full * 100 / *design, 100));
}

} // namespace ferrin
