// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <memory>

namespace ferrin {

class DefaultsStore;

/// Sets the store of the whole process. The application calls it once, before anything reads a
/// setting; tests set their own. A store that is replaced must not be used any more.
void setSharedDefaults(std::unique_ptr<DefaultsStore> store);

/// The store of the process. Calling this before one is set is a programming error and stops the
/// process.
[[nodiscard]] DefaultsStore &sharedDefaults();

} // namespace ferrin
