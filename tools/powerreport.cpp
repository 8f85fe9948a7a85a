// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tools/powerreport.h"

#include "platform/linux/power/sysfs/attributetext.h"
#include "platform/linux/power/sysfs/batteryfigures.h"
#include "platform/linux/power/sysfs/batteryrecords.h"
#include "platform/linux/power/sysfs/externalpower.h"
#include "platform/linux/power/sysfs/pack.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace ferrin {

namespace {

constexpr int soundPercent = 80;

// The kernel's other values describe the moment (the temperature, a charger's timer), not the pack:
// https://www.kernel.org/doc/Documentation/ABI/testing/sysfs-class-power
constexpr std::array<std::string_view, 8> faults {
    "Dead",       "Overheat",       "Over voltage",        "Over current",
    "Blown fuse", "Cell imbalance", "Unspecified failure", "Calibration required",
};

struct Health
{
    std::string name;
    std::optional<int> percent;
    std::optional<bool> sound;
    Reading cycles;

    // Faulty packs first, then by capacity; packs of unknown capacity last.
    [[nodiscard]] auto rank() const
    {
        return std::tuple(sound.value_or(true), percent.value_or(101), name);
    }
};

std::optional<bool> isSound(const BatteryRecord &record, std::optional<int> percent)
{
    if (std::find(faults.begin(), faults.end(), record.health) != faults.end())
        return false;
    if (percent)
        return *percent >= soundPercent;
    return record.health == "Good" ? std::optional(true) : std::nullopt;
}

std::vector<Health> healthOf(const PowerSupplies &supplies,
                             const std::vector<BatteryRecord> &records)
{
    const std::vector<Pack> packs = packsOf(supplies.batteries);
    std::vector<Health> all;
    for (std::size_t index = 0; index < packs.size(); ++index) {
        if (packs[index].phantom)
            continue;
        const BatteryRecord &record = records[index];
        const std::optional<int> percent = healthPercent(supplies.batteries[index], record);
        all.push_back(
            { record.name, percent, isSound(record, percent), greatestCycleCount({ record }) });
    }
    std::sort(all.begin(), all.end(),
              [](const Health &left, const Health &right) { return left.rank() < right.rank(); });
    return all;
}

std::string sectionOf(const Health &health)
{
    std::string text = "\n      Battery " + health.name + ":\n";
    if (health.cycles)
        text += "          Cycle Count: " + std::to_string(*health.cycles) + '\n';
    if (health.sound)
        text += std::string("          Condition: ")
            + (*health.sound ? "Normal" : "Service Recommended") + '\n';
    if (health.percent)
        text += "          Maximum Capacity: " + std::to_string(*health.percent) + "%\n";
    return text;
}

} // namespace

std::string powerReport(const PowerSupplies &supplies, const std::vector<BatteryRecord> &records)
{
    std::string text = "Power:\n";
    const std::vector<Health> all = healthOf(supplies, records);
    if (!all.empty())
        text += "\n    Battery Information:\n";
    for (const Health &health : all)
        text += sectionOf(health);
    if (const std::optional<bool> external = externalConnected(supplies))
        text += std::string("\n    AC Charger Information:\n\n          Connected: ")
            + (*external ? "Yes" : "No") + '\n';
    return text;
}

} // namespace ferrin
