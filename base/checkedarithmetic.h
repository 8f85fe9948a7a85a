// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QtGlobal>

namespace ferrin {

/// Arithmetic on 64-bit integers that never overflows silently: a result that does not fit is a
/// programming error and stops the process with one log line.

[[nodiscard]] qint64 checkedAdd(qint64 left, qint64 right);
[[nodiscard]] qint64 checkedSubtract(qint64 left, qint64 right);
[[nodiscard]] qint64 checkedMultiply(qint64 left, qint64 right);

/// The value without its fraction, truncated toward zero. Infinity and "not a number" do not fit.
[[nodiscard]] qint64 checkedInteger(float value);

} // namespace ferrin
