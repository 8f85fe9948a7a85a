// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// What UPower says of its devices, in any type and any order. A line "0/Percentage=d37" is a
// property of a device by its type's letter; "0/" forgets the device, and "/1", "/0", "/" tell
// whether power is external and ask for the description of all.

#include "platform/linux/power/upower/upowerdescription.h"
#include "tests/fuzz/busvalues.h"
#include "tests/fuzz/lines.h"
#include "tests/fuzz/upowerinvariants.h"

#include <array>
#include <map>

namespace ferrin::fuzz {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array<std::string_view, 4> places { "0/", "1/", "2/", "/" };
constexpr std::array<std::string_view, 9> properties { "Type",       "PowerSupply", "IsPresent",
                                                       "State",      "Percentage",  "TimeToEmpty",
                                                       "TimeToFull", "Model",       "NativePath" };
constexpr std::array<std::string_view, 24> values { "u0",
                                                    "u1",
                                                    "u2",
                                                    "u3",
                                                    "u4",
                                                    "u5",
                                                    "u6",
                                                    "u4294967295",
                                                    "btrue",
                                                    "bfalse",
                                                    "d0",
                                                    "d37.5",
                                                    "d100",
                                                    "d-1",
                                                    "dnan",
                                                    "dinf",
                                                    "d1e308",
                                                    "x0",
                                                    "x60",
                                                    "x172800",
                                                    "x-9223372036854775808",
                                                    "x9223372036854775807",
                                                    "sBAT0",
                                                    "s" };

class Daemon
{
public:
    void obey(std::string_view line)
    {
        const auto [key, value] = keyAndValue(line);
        const std::size_t slash = key.find('/');
        if (slash == 0)
            check(key.substr(1));
        else if (slash != std::string_view::npos)
            change(std::string(key.substr(0, slash)), key.substr(slash + 1), value);
    }

    void check(std::string_view external)
    {
        QList<UPowerDevice> devices;
        for (const auto &[path, device] : m_devices)
            devices.append(device);
        checkPowerSources(
            devices, external.empty() ? std::nullopt : std::optional(external.starts_with('1')));
    }

private:
    void change(const std::string &device, std::string_view property, std::string_view value)
    {
        if (property.empty())
            m_devices.erase(device);
        else
            std::ignore = m_devices[device].update(
                { { QString::fromUtf8(QByteArrayView(property)), valueOf(value) } });
    }

    std::map<std::string, UPowerDevice> m_devices;
};

} // namespace

const Words knownWords { places, properties, values };

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    Daemon daemon;
    for (const std::string_view line : linesOf({ reinterpret_cast<const char *>(data), size }))
        daemon.obey(line);
    for (const std::string_view external : { "", "0", "1" })
        daemon.check(external);
    return 0;
}
