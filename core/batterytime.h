// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/variantcast.h"

#include <QMetaType>
#include <QVariant>

#include <optional>

namespace ferrin {

/// A span of time as it is shown: whole hours, and minutes past the hour. Both are absent together
/// when no time is known; to QML an absent number is `undefined`.
struct BatteryTime
{
    Q_GADGET
    Q_PROPERTY(QVariant hours READ hoursValue CONSTANT)
    Q_PROPERTY(QVariant minutes READ minutesValue CONSTANT)

public:
    std::optional<qint64> hours;
    /// 0 to 59.
    std::optional<qint64> minutes;

    /// Both truncated toward zero; absent hours give an absent time. A number that is not finite,
    /// or whose minutes do not fit 64 bits, is a programming error and stops the process.
    [[nodiscard]] static BatteryTime fractionalHours(std::optional<float> hours);

    [[nodiscard]] QVariant hoursValue() const { return toVariant(hours); }
    [[nodiscard]] QVariant minutesValue() const { return toVariant(minutes); }

    friend bool operator==(const BatteryTime &, const BatteryTime &) = default;
};

} // namespace ferrin
