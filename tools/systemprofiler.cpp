// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/supplyreader.h"
#include "tools/boundedtask.h"
#include "tools/powerreport.h"

#include <cstdio>
#include <string_view>

using namespace std::chrono_literals;

namespace {

std::string report()
{
    const ferrin::SupplyReader reader("/sys");
    const ferrin::PowerSupplies supplies = reader.read();
    return ferrin::powerReport(supplies, reader.readRecords(supplies.batteries));
}

} // namespace

/// Prints the hardware report of the data type SPPowerDataType, and exits within a second whatever
/// the kernel does; what is not known by then is not printed.
int main(int count, char **arguments)
{
    if (count != 2 || std::string_view(arguments[1]) != "SPPowerDataType")
        return 1;
    const std::optional<std::string> text = ferrin::resultWithin(800ms, report);
    if (!text)
        return 1;
    std::fputs(text->c_str(), stdout);
    return 0;
}
