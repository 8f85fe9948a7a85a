// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QLoggingCategory>

namespace ferrin {

/// The one logger of the system. Its category is "stats"; the subsystem, the bundle identifier, is
/// added where lines leave the process.
Q_DECLARE_LOGGING_CATEGORY(logger)

} // namespace ferrin
