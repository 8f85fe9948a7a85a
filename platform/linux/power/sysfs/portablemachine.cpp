// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/portablemachine.h"

#include "platform/linux/power/sysfs/attributedirectory.h"
#include "platform/linux/power/sysfs/attributetext.h"

#include <algorithm>
#include <array>

namespace ferrin {

namespace {

// SMBIOS: portable, laptop, notebook, hand held, sub notebook, tablet, convertible, detachable.
constexpr std::array<std::int64_t, 8> portableChassis { 8, 9, 10, 11, 14, 30, 31, 32 };
constexpr std::array<std::string_view, 4> portableWords { "laptop", "convertible", "tablet",
                                                          "handset" };

} // namespace

bool isPortable(const std::string &root)
{
    AttributeDirectory::Buffer buffer;
    const AttributeDirectory all(root.c_str());
    const auto chassis = numberOf(all.read("class/dmi/id/chassis_type", buffer));
    if (chassis)
        return std::find(portableChassis.begin(), portableChassis.end(), *chassis)
            != portableChassis.end();
    std::string_view word = all.read("firmware/devicetree/base/chassis-type", buffer);
    // Device trees end their texts with a zero.
    word = word.substr(0, word.find('\0'));
    return std::find(portableWords.begin(), portableWords.end(), word) != portableWords.end();
}

} // namespace ferrin
