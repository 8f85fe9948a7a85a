// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "base/logging.h"

namespace ferrin {

Q_LOGGING_CATEGORY(logger, "stats")

} // namespace ferrin
