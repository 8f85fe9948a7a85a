// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/icon.h"

namespace ferrin {

/// The icon in plain words, for those who hear what others see. No two icons have the same name.
[[nodiscard]] QString spokenName(Icon icon);

} // namespace ferrin
