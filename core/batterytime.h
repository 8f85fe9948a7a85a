// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

#include <optional>

namespace ferrin {

/// A span of time as it is shown: whole hours, and minutes past the hour. Both are absent
/// together when no time is known.
struct BatteryTime
{
    std::optional<qint64> hours;
    /// 0 to 59.
    std::optional<qint64> minutes;

    /// Both truncated toward zero; absent hours give an absent time. A number that is not finite,
    /// or whose minutes do not fit 64 bits, is a programming error and stops the process.
    [[nodiscard]] static BatteryTime fractionalHours(std::optional<float> hours);

    friend bool operator==(const BatteryTime &, const BatteryTime &) = default;
};

} // namespace ferrin
