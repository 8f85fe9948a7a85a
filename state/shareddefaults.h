// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <memory>

namespace ferrin {

class DefaultsStore;

/// Hands over the store that serves the whole process. The application does so once, before
/// anything reads a setting; a test hands over its own. A store that is replaced must have no
/// readers left.
void setSharedDefaults(std::unique_ptr<DefaultsStore> store);

/// The store of the process. Asking before one was handed over is a programming error and stops it.
[[nodiscard]] DefaultsStore &sharedDefaults();

} // namespace ferrin
