// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/batteryrecords.h"

#include "platform/linux/power/sysfs/attributetext.h"
#include "platform/linux/power/sysfs/pack.h"

#include <algorithm>

namespace ferrin {

namespace {

constexpr qint64 mostCycles = 10'000;
// Tenths of a degree.
constexpr qint64 coldest = -400;
constexpr qint64 warmest = 1'200;

// The driver of the MAX17042 family reports the raw cycle register, which counts hundredths of a
// cycle in some chips and sixteenths in others. All its supplies have names with this prefix.
bool countsParts(const BatteryRecord &record)
{
    return record.name.starts_with("max170");
}

Reading greater(Reading left, Reading right)
{
    return left && (!right || *left >= *right) ? left : right;
}

} // namespace

Reading greatestCycleCount(const std::vector<BatteryRecord> &records)
{
    Reading greatest;
    for (const BatteryRecord &record : records) {
        const qint64 count = record.cycleCount.value_or(0);
        if (count > 0 && count <= mostCycles && !countsParts(record))
            greatest = greater(greatest, count);
    }
    return greatest;
}

Reading designMilliampHours(const std::vector<BatterySupply> &batteries,
                            const std::vector<BatteryRecord> &records)
{
    if (batteries.empty() || batteries.size() != records.size())
        return std::nullopt;
    qint64 sum = 0;
    for (std::size_t index = 0; index < batteries.size(); ++index) {
        const Reading design = designMilliampHours(batteries[index], records[index]);
        if (!design)
            return std::nullopt;
        sum += *design;
    }
    return sum;
}

Reading temperatureHundredths(const std::vector<BatteryRecord> &records)
{
    Reading greatest;
    for (const BatteryRecord &record : records) {
        const Reading tenths = record.temperature;
        if (tenths && *tenths >= coldest && *tenths <= warmest)
            greatest = greater(greatest, *tenths * 10);
    }
    return greatest;
}

QString serialNumber(const std::vector<BatteryRecord> &records)
{
    for (const BatteryRecord &record : records) {
        QString serial = serialOf(record.serialNumber);
        if (!serial.isEmpty())
            return serial;
    }
    return {};
}

} // namespace ferrin
