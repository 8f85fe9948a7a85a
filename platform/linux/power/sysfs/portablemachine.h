// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <string>

namespace ferrin {

/// Whether the machine is made to run on batteries, by what its firmware or its device tree says of
/// its chassis; false also where that is not known.
[[nodiscard]] bool isPortable(const std::string &root);

} // namespace ferrin
