// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <chrono>

namespace ferrin {

/// Watts times this are watt-hours.
using Hours = std::chrono::duration<double, std::ratio<3600>>;

} // namespace ferrin
