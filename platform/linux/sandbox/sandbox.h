// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

namespace ferrin {

/// Whether the program runs in a Flatpak. It then sees neither the processes nor the files of the
/// desktop, and whatever changes those goes through the desktop's portals.
/// https://docs.flatpak.org/en/latest/sandbox-permissions.html
[[nodiscard]] bool isInSandbox();

/// The user's folder for files that end with the session, where the desktop's programs find them by
/// the same path: in a sandbox the one that Flatpak shares with the outside.
[[nodiscard]] QString sharedRuntimeFolder();

} // namespace ferrin
