// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

#include <functional>
#include <optional>

namespace ferrin {

enum class NetworkReach {
    /// There is one, or nobody knows of any limits.
    free,
    /// What is fetched may cost money.
    metered,
    none,
};

/// How the machine is connected. The platform implements it.
class NetworkCost
{
public:
    virtual ~NetworkCost() = default;

    /// Answers once, now or later; never after this is destroyed.
    virtual void ask(std::function<void(NetworkReach)> answer) = 0;
};

/// What the battery has left for things that can wait.
struct BatteryReserve
{
    /// Percent; absent without a battery.
    std::optional<qint64> charge;
    bool isDischarging = false;

    [[nodiscard]] bool isLow() const
    {
        constexpr qint64 least = 20;
        return isDischarging && charge && *charge < least;
    }
};

} // namespace ferrin
