// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/fuzz/plainwords.h"

#include <algorithm>

namespace ferrin::fuzz {

namespace {

using Attributes = std::map<std::string, std::string>;

std::string valueOf(const Attributes &attributes, const std::string &name)
{
    const auto found = attributes.find(name);
    return found == attributes.end() ? std::string() : found->second;
}

/// Absent for anything but one to eight digits.
std::optional<int> digits(const std::string &text)
{
    const bool isNumber = std::all_of(text.begin(), text.end(),
                                      [](char each) { return each >= '0' && each <= '9'; });
    return isNumber && !text.empty() && text.size() <= 8 ? std::optional(std::stoi(text))
                                                         : std::nullopt;
}

bool isPlainBattery(const Attributes &battery)
{
    constexpr int leastVoltage = 3'000'000;
    constexpr int greatestVoltage = 50'000'000;
    const auto voltage = digits(valueOf(battery, "voltage_now"));
    return valueOf(battery, "type") == "Battery" && valueOf(battery, "present") == "1"
        && !battery.contains("scope") && voltage >= leastVoltage && voltage <= greatestVoltage;
}

/// The one battery, if there is nothing beside it but a mains adapter.
const Attributes *onlyBattery(const Supplies &supplies)
{
    const Attributes *battery = nullptr;
    for (const auto &[name, attributes] : supplies) {
        if (valueOf(attributes, "type") == "Mains" && !attributes.contains("scope"))
            continue;
        if (battery || !isPlainBattery(attributes))
            return nullptr;
        battery = &attributes;
    }
    return supplies.size() <= 2 ? battery : nullptr;
}

bool hasAdapterThatSays(const Supplies &supplies, const std::string &online)
{
    return std::any_of(supplies.begin(), supplies.end(), [&online](const auto &supply) {
        return valueOf(supply.second, "type") == "Mains"
            && valueOf(supply.second, "online") == online;
    });
}

} // namespace

PlainWords plainWordsOf(const Supplies &supplies)
{
    PlainWords words;
    const Attributes *const battery = onlyBattery(supplies);
    if (!battery)
        return words;
    const auto capacity = digits(valueOf(*battery, "capacity"));
    if (capacity >= 1 && capacity <= 100)
        words.charge = capacity;
    const std::string status = valueOf(*battery, "status");
    if (status == "Charging" && hasAdapterThatSays(supplies, "1"))
        words.isCharging = words.isExternal = true;
    if (status == "Discharging" && (supplies.size() == 1 || hasAdapterThatSays(supplies, "0")))
        words.isCharging = words.isExternal = false;
    return words;
}

} // namespace ferrin::fuzz
