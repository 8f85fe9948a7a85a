// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/supplyreader.h"

#include "platform/linux/power/sysfs/attributedirectory.h"
#include "platform/linux/power/sysfs/attributetext.h"

#include <array>

namespace ferrin {

namespace {

template <typename Supply>
struct NumberAttribute
{
    const char *file;
    Reading Supply::*member;
};

constexpr std::array<NumberAttribute<BatterySupply>, 14> batteryNumbers { {
    { "capacity", &BatterySupply::capacity },
    { "energy_now", &BatterySupply::energyNow },
    { "energy_full", &BatterySupply::energyFull },
    { "power_now", &BatterySupply::powerNow },
    { "charge_now", &BatterySupply::chargeNow },
    { "charge_full", &BatterySupply::chargeFull },
    { "current_now", &BatterySupply::currentNow },
    { "voltage_now", &BatterySupply::voltageNow },
    { "voltage_min_design", &BatterySupply::voltageMinDesign },
    { "time_to_empty_now", &BatterySupply::timeToEmptyNow },
    { "time_to_empty_avg", &BatterySupply::timeToEmptyAverage },
    { "time_to_full_now", &BatterySupply::timeToFullNow },
    { "time_to_full_avg", &BatterySupply::timeToFullAverage },
    { "charge_control_end_threshold", &BatterySupply::chargeEndThreshold },
} };

constexpr std::array<NumberAttribute<BatteryRecord>, 4> recordNumbers { {
    { "energy_full_design", &BatteryRecord::energyFullDesign },
    { "charge_full_design", &BatteryRecord::chargeFullDesign },
    { "cycle_count", &BatteryRecord::cycleCount },
    { "temp", &BatteryRecord::temperature },
} };

constexpr std::array<NumberAttribute<AdapterSupply>, 6> adapterNumbers { {
    { "voltage_now", &AdapterSupply::voltageNow },
    { "voltage_max", &AdapterSupply::voltageMax },
    { "voltage_max_design", &AdapterSupply::voltageMaxDesign },
    { "current_now", &AdapterSupply::currentNow },
    { "current_max", &AdapterSupply::currentMax },
    { "input_power_limit", &AdapterSupply::inputPowerLimit },
} };

template <typename Supply, std::size_t Count>
void readNumbers(const AttributeDirectory &directory,
                 const std::array<NumberAttribute<Supply>, Count> &attributes, Supply &supply)
{
    AttributeDirectory::Buffer buffer;
    for (const NumberAttribute<Supply> &attribute : attributes)
        supply.*attribute.member = numberOf(directory.read(attribute.file, buffer));
}

// A zero, or a status that says nothing, is believed only with a witness.
bool needsLevel(const BatterySupply &battery)
{
    return battery.status == ChargeStatus::Unknown || battery.capacity.value_or(0) == 0;
}

BatterySupply readBattery(const AttributeDirectory &directory, const std::string &name)
{
    AttributeDirectory::Buffer buffer;
    BatterySupply battery;
    battery.name = name;
    battery.status = chargeStatusOf(directory.read("status", buffer));
    readNumbers(directory, batteryNumbers, battery);
    if (needsLevel(battery))
        battery.capacityLevel = directory.read("capacity_level", buffer);
    return battery;
}

AdapterSupply readAdapter(const AttributeDirectory &directory, SupplyType type)
{
    AttributeDirectory::Buffer buffer;
    AdapterSupply adapter;
    adapter.type = type;
    adapter.online = numberOf(directory.read("online", buffer));
    if (adapter.online.value_or(0) == 0)
        return adapter;
    readNumbers(directory, adapterNumbers, adapter);
    adapter.usbType = directory.read("usb_type", buffer);
    adapter.manufacturer = directory.read("manufacturer", buffer);
    adapter.modelName = directory.read("model_name", buffer);
    return adapter;
}

void readSupply(const AttributeDirectory &directory, const std::string &name,
                PowerSupplies &supplies)
{
    AttributeDirectory::Buffer buffer;
    const SupplyType type = supplyTypeOf(directory.read("type", buffer));
    if (!powersSystem(type, directory.read("scope", buffer)))
        return;
    if (type != SupplyType::Battery)
        supplies.adapters.push_back(readAdapter(directory, type));
    else if (directory.read("present", buffer) != "0")
        supplies.batteries.push_back(readBattery(directory, name));
}

} // namespace

SupplyReader::SupplyReader(std::string root)
    : m_supplies(std::move(root) + "/class/power_supply")
{
}

PowerSupplies SupplyReader::read() const
{
    PowerSupplies supplies;
    const AttributeDirectory all(m_supplies.c_str());
    for (const std::string &name : all.entries()) {
        const AttributeDirectory directory = all.child(name.c_str());
        if (directory.exists())
            readSupply(directory, name, supplies);
    }
    return supplies;
}

std::vector<BatteryRecord>
SupplyReader::readRecords(const std::vector<BatterySupply> &batteries) const
{
    AttributeDirectory::Buffer buffer;
    std::vector<BatteryRecord> records;
    const AttributeDirectory all(m_supplies.c_str());
    for (const BatterySupply &battery : batteries) {
        const AttributeDirectory directory = all.child(battery.name.c_str());
        BatteryRecord &record = records.emplace_back();
        record.name = battery.name;
        readNumbers(directory, recordNumbers, record);
        record.serialNumber = directory.read("serial_number", buffer);
        record.health = directory.read("health", buffer);
        record.modelName = directory.read("model_name", buffer);
    }
    return records;
}

} // namespace ferrin
