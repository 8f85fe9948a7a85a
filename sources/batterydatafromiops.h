// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/powersourcesservice.h"

#include <QVariant>

#include <optional>

namespace ferrin {

/// Reads the system's own estimate of the remaining time from the power-sources service. Owned by
/// the provider. It returns the service's values unchanged, and keeps the last description when a
/// read fails.
class BatteryDataFromIOPS
{
public:
    /// The service must outlive this reader.
    explicit BatteryDataFromIOPS(PowerSourcesService &service);
    BatteryDataFromIOPS(const BatteryDataFromIOPS &) = delete;
    BatteryDataFromIOPS &operator=(const BatteryDataFromIOPS &) = delete;

    /// The last description of the internal battery; absent until the first successful read.
    [[nodiscard]] const std::optional<QVariantMap> &batteryInfo() const noexcept
    {
        return m_batteryInfo;
    }
    /// True until the first successful read.
    [[nodiscard]] bool entryFlag() const noexcept { return m_entryFlag; }

    /// Reads the power sources again. A failure is logged.
    void refresh();

    /// Refreshes, then returns the minutes until empty or until full: -1 while the service is still
    /// estimating, 0 in the direction that does not apply. Absent when the service gives none.
    [[nodiscard]] std::optional<qint64> timeEstimate(bool toEmpty);

private:
    PowerSourcesService &m_service;
    std::optional<QVariantMap> m_batteryInfo;
    bool m_entryFlag = true;
};

} // namespace ferrin
