// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A whole folder of power supplies, again and again, through the registry to the snapshot. A line
// "BAT0/status=Full" is an attribute, "BAT0/status" one that goes away, "BAT0/" a supply that does,
// and "/5" a refresh after as many seconds. "typec=" and "rating=" fill what lies outside of the
// class.

#include "core/batterydataprovider.h"
#include "core/storeddata.h"
#include "platform/linux/power/powersources/powersources.h"
#include "platform/linux/power/sysfs/sysfsregistry.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/lines.h"
#include "tests/fuzz/plainwords.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/memorydefaultsstore.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>

namespace ferrin::fuzz {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::string_view, 6> places { "BAT0/", "BAT1/", "CMB1/",
                                                   "AC/",   "USBC/", "mouse/" };
constexpr std::array<std::string_view, 32> attributes { "type",
                                                        "status",
                                                        "capacity",
                                                        "energy_now",
                                                        "energy_full",
                                                        "power_now",
                                                        "charge_now",
                                                        "charge_full",
                                                        "current_now",
                                                        "voltage_now",
                                                        "voltage_min_design",
                                                        "time_to_empty_now",
                                                        "time_to_empty_avg",
                                                        "time_to_full_now",
                                                        "time_to_full_avg",
                                                        "charge_control_end_threshold",
                                                        "energy_full_design",
                                                        "charge_full_design",
                                                        "cycle_count",
                                                        "temp",
                                                        "online",
                                                        "voltage_max",
                                                        "voltage_max_design",
                                                        "current_max",
                                                        "input_power_limit",
                                                        "usb_type",
                                                        "manufacturer",
                                                        "model_name",
                                                        "present",
                                                        "scope",
                                                        "capacity_level",
                                                        "serial_number" };
constexpr std::array<std::string_view, 40> values { "Battery",
                                                    "Mains",
                                                    "USB",
                                                    "Wireless",
                                                    "UPS",
                                                    "Device",
                                                    "System",
                                                    "Unknown",
                                                    "Charging",
                                                    "Discharging",
                                                    "Not charging",
                                                    "Full",
                                                    "Critical",
                                                    "Low",
                                                    "Normal",
                                                    "C [PD] PD_PPS",
                                                    "",
                                                    "0",
                                                    "1",
                                                    "2",
                                                    "50",
                                                    "95",
                                                    "99",
                                                    "100",
                                                    "101",
                                                    "120",
                                                    "65535",
                                                    "-1",
                                                    "-32768",
                                                    "12000000",
                                                    "9223372036854775807",
                                                    "-9223372036854775808",
                                                    "99999999999999999999",
                                                    "3250000",
                                                    "20000000",
                                                    "5000000",
                                                    "46000000",
                                                    "17020000",
                                                    "6100000",
                                                    "0x10" };

/// Names as the kernel makes them; nothing leads out of the folder.
bool isName(std::string_view name)
{
    const auto isUsual = [](char each) {
        return (each >= '0' && each <= '9') || (each >= 'a' && each <= 'z')
            || (each >= 'A' && each <= 'Z') || each == '_' || each == '-' || each == ':';
    };
    return !name.empty() && name.size() <= 40 && std::all_of(name.begin(), name.end(), isUsual);
}

/// A machine of which every part is real but sysfs, the time and the report.
class Machine
{
public:
    Machine() { std::filesystem::create_directories(supplyFolder()); }
    ~Machine() { std::filesystem::remove_all(m_root); }
    Machine(const Machine &) = delete;
    Machine &operator=(const Machine &) = delete;

    void obey(std::string_view line)
    {
        const auto [key, value] = keyAndValue(line);
        const std::size_t slash = key.find('/');
        if (slash == 0)
            pass(key.substr(1));
        else if (slash != std::string_view::npos && isName(key.substr(0, slash)))
            change(std::string(key.substr(0, slash)), std::string(key.substr(slash + 1)),
                   std::string(value), key.size() < line.size());
    }

    void refresh()
    {
        m_registry.expire();
        if (m_provider)
            m_provider->updatePeriodicData();
        else
            m_provider.emplace(platform());
        if (++m_refreshes % 4 == 1)
            m_provider->updateStaticData();
        checkSnapshot();
        checkRegistry();
        checkPlainWords();
    }

private:
    [[nodiscard]] std::filesystem::path supplyFolder() const
    {
        return std::filesystem::path(m_root) / "class" / "power_supply";
    }

    [[nodiscard]] BatteryDataProvider::Platform platform()
    {
        return { .registry = m_registry,
                 .powerSources = m_sources,
                 .processLauncher = m_launcher,
                 .storedData = [this]() -> StoredData & { return m_stored; } };
    }

    void pass(std::string_view seconds)
    {
        int count = 0;
        std::from_chars(seconds.data(), seconds.data() + seconds.size(), count);
        m_now += std::chrono::seconds(std::clamp(count, 0, 100'000));
        // So many say all there is to say.
        if (m_refreshes < 64)
            refresh();
    }

    void change(const std::string &supply, const std::string &attribute, const std::string &value,
                bool isThere)
    {
        const std::filesystem::path folder = supplyFolder() / supply;
        if (attribute.empty()) {
            std::filesystem::remove_all(folder);
            m_supplies.erase(supply);
        } else if (isName(attribute) && isThere) {
            std::filesystem::create_directories(folder);
            write(QString::fromStdString(folder / attribute),
                  QByteArray::fromStdString(value + '\n'));
            m_supplies[supply][attribute] = value;
        } else if (isName(attribute)) {
            std::filesystem::remove(folder / attribute);
            m_supplies[supply].erase(attribute);
        }
    }

    void checkSnapshot()
    {
        const BatteryData &data = *m_provider->data();
        const auto charge = data.charge();
        require(!charge || (*charge >= 0 && *charge <= 100), "the charge is 0 to 100");
        for (const BatteryTime &time :
             { data.timeRemaining(), data.estimatedTimeToEmpty(), data.estimatedTimeToFull() }) {
            require(bool(time.hours) == bool(time.minutes), "a time is there or not");
            require(!time.hours || *time.hours >= 0, "hours are not negative");
            require(!time.minutes || (*time.minutes >= 0 && *time.minutes <= 59),
                    "minutes are 0 to 59");
        }
        const auto limit = data.chargeLimit();
        require(!limit || (*limit >= 1 && *limit <= 99), "a limit is 1 to 99");
        const auto cycles = data.chargeCycles();
        require(!cycles || *cycles > 0, "counted cycles are not 0");
        require(!data.rawMaxCapacity() || *data.rawMaxCapacity() >= 100, "a pack has 100 mAh");
        const bool isReal = data.timeRemainingQuality() == TimeQuality::real;
        require(!isReal || !data.timeRemaining().hours || *data.timeRemaining().hours <= 48,
                "no time is beyond two days");
        checkAdapter(data);
    }

    static void checkAdapter(const BatteryData &data)
    {
        const bool isThere = data.adapterWatts() || data.adapterCurrent() || data.adapterVoltage()
            || data.adapterName() || data.adapterManufacturer();
        require(!isThere || data.powerSource() == PowerSource::external,
                "an adapter is described only while there is one");
        const auto watts = data.adapterWatts();
        require(!watts || (*watts >= 0 && *watts <= 500), "an adapter gives at most 500 W");
        const auto amperes = data.adapterCurrent();
        require(!amperes || (*amperes >= 0 && *amperes <= 5), "a cable carries at most 5 A");
        const auto volts = data.adapterVoltage();
        require(!volts || (*volts >= 5 && *volts <= 48), "an adapter gives 5 to 48 V");
    }

    [[nodiscard]] QVariant said(SmartBatteryKey key)
    {
        return m_registry.createProperty(1, rawValue(key));
    }

    void checkRegistry()
    {
        const QVariant toEmpty = said(SmartBatteryKey::avgTimeToEmpty);
        const QVariant toFull = said(SmartBatteryKey::avgTimeToFull);
        const QVariant remaining = said(SmartBatteryKey::timeRemaining);
        const bool isCharging = said(SmartBatteryKey::isCharging).toBool();
        require(!toFull.isValid() || isCharging, "there is a time to full only while charging");
        require(!isCharging || !toEmpty.isValid(), "there is none to empty meanwhile");
        for (const QVariant &time : { toEmpty, toFull, remaining }) {
            const qlonglong minutes = time.toLongLong();
            require(!time.isValid() || (minutes >= 0 && minutes <= 2880), "times are 0 to 48 h");
        }
        const QVariant held = said(SmartBatteryKey::chargingHeld);
        require(!held.toBool() || (!isCharging && m_registry.externalPower() == true),
                "a held battery is plugged in and does not charge");
        const int degrees = said(SmartBatteryKey::temperature).toInt();
        require(degrees >= -4000 && degrees <= 12'000, "temperatures are possible");
    }

    void checkPlainWords()
    {
        // Those that were connected when there was no battery are not looked at again.
        if (!m_provider->batteryIOService().connected())
            return;
        const PlainWords plain = plainWordsOf(m_supplies);
        const BatteryData &data = *m_provider->data();
        if (plain.charge)
            require(data.charge() == *plain.charge, "a plain charge is shown");
        if (plain.isExternal) {
            require(data.powerSource()
                        == (*plain.isExternal ? PowerSource::external : PowerSource::battery),
                    "a plain source of power is shown");
            require(said(SmartBatteryKey::isCharging) == *plain.isCharging,
                    "plain charging is shown");
        }
        if (plain.charge && plain.isExternal)
            require(data.chargingStatus() != BatteryChargingStatus::unknown,
                    "a plain status is shown");
    }

    std::string m_root = newFolder().toStdString();
    Supplies m_supplies;
    std::chrono::seconds m_now { 1000 };
    SysfsRegistry m_registry { { .root = m_root,
                                 .usbVendors = {},
                                 .now
                                 = [this] { return std::chrono::steady_clock::time_point(m_now); },
                                 .elapsed = [this] { return m_now; },
                                 .memoryPath = {} } };
    test::FakePowerSources m_upower;
    PowerSources m_sources { m_upower, m_registry };
    test::FakeProcessLauncher m_launcher;
    test::MemoryDefaultsStore m_store;
    StoredData m_stored { m_store };
    std::optional<BatteryDataProvider> m_provider;
    int m_refreshes = 0;
};

} // namespace

const Words knownWords { places, attributes, values };

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    Machine machine;
    for (const std::string_view line : linesOf({ reinterpret_cast<const char *>(data), size }))
        machine.obey(line);
    machine.refresh();
    machine.refresh();
    return 0;
}
