// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

namespace ferrin {

/// The load, in mA, that a time to empty is estimated with when the system has none: while its own
/// time is not known, and for the time that a full battery would last.
inline constexpr float assumedLoadInMilliamperes = 300.0F;

} // namespace ferrin
