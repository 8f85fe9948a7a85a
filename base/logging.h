// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QLoggingCategory>

namespace ferrin {

/// The only logging category of the program, "stats". The message handler adds the subsystem, which
/// is the bundle identifier.
Q_DECLARE_LOGGING_CATEGORY(logger)

} // namespace ferrin
