// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "settingswindow/support/vendor.h"

#include <QString>

namespace ferrin {

/// Where the program's own parts lie (the report tool, the module of the windows): where they were
/// installed, as seen from the folder of the executable, and in the build tree likewise.
[[nodiscard]] QString privateFolder();

/// Where the vendor is found, as this program was built. Built without an address for the page of
/// frequently asked questions, it is the page that was installed with the program; built without a
/// support address, there is none.
[[nodiscard]] Vendor vendor();

} // namespace ferrin
