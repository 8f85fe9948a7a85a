// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/icon.h"

namespace ferrin {

/// The icon's name for screen readers. No two icons have the same name.
[[nodiscard]] QString spokenName(Icon icon);

} // namespace ferrin
