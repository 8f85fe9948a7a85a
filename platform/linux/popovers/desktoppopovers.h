// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/popoverdesktop.h"
#include "popover/presswatcher.h"

#include <memory>

namespace ferrin {

/// The desktop's side of popovers on the display server that the application runs on.
[[nodiscard]] std::unique_ptr<PopoverDesktop> makePopoverDesktop();
[[nodiscard]] std::unique_ptr<PressWatcher> makePressWatcher();

} // namespace ferrin
