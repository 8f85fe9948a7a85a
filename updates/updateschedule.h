// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDateTime>

#include <chrono>
#include <optional>

namespace ferrin {

/// When the service looks for itself: at most once a day, and never in the first minute.
namespace updateschedule {

inline constexpr std::chrono::hours betweenChecks { 24 };
/// The first minute, and what a coarse timer may be early.
inline constexpr std::chrono::seconds afterStart { 61 };
/// A sleeping machine stops the timer, and conditions change: the longest wait for another look
/// at the clock.
inline constexpr std::chrono::hours betweenLooks { 1 };

/// A last check that is yet to come was written under a wrong clock and counts for nothing.
[[nodiscard]] bool isDue(const std::optional<QDateTime> &lastCheck, const QDateTime &now);

/// How long to wait for the next look, `afterStart` to `betweenLooks`.
[[nodiscard]] std::chrono::milliseconds untilNextLook(const std::optional<QDateTime> &lastCheck,
                                                      const QDateTime &now);

} // namespace updateschedule

} // namespace ferrin
