// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterytime.h"

#include "base/checkedarithmetic.h"

namespace ferrin {

BatteryTime BatteryTime::fractionalHours(std::optional<float> hours)
{
    if (!hours)
        return {};
    return { checkedInteger(*hours), checkedInteger(*hours * 60.0F) % 60 };
}

} // namespace ferrin
