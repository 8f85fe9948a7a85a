// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/powersourcesservice.h"

#include <QVariant>

#include <optional>

namespace ferrin {

/// The system's own estimate of the time left, taken from the power sources' description of the
/// internal battery. The provider owns the one instance. It interprets nothing, and a failed read
/// leaves the last good description in place.
class BatteryDataFromIOPS
{
public:
    /// The service must outlive this reader.
    explicit BatteryDataFromIOPS(PowerSourcesService &service);
    BatteryDataFromIOPS(const BatteryDataFromIOPS &) = delete;
    BatteryDataFromIOPS &operator=(const BatteryDataFromIOPS &) = delete;

    /// The last description of the internal battery; absent until one was read.
    [[nodiscard]] const std::optional<QVariantMap> &batteryInfo() const noexcept
    {
        return m_batteryInfo;
    }
    /// True until the first successful read.
    [[nodiscard]] bool entryFlag() const noexcept { return m_entryFlag; }

    /// Reads the power sources anew. A failure costs one log line.
    void refresh();

    /// Refreshes, then answers the minutes until empty or until full as the service states them: -1
    /// while it is still estimating. Absent when it states none.
    [[nodiscard]] std::optional<qint64> timeEstimate(bool toEmpty);

private:
    PowerSourcesService &m_service;
    std::optional<QVariantMap> m_batteryInfo;
    bool m_entryFlag = true;
};

} // namespace ferrin
