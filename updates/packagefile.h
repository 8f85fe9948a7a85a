// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/release.h"

#include <QString>

namespace ferrin {

/// Whether the file is the package, whole: its length and its hash are those that the feed tells.
/// Reads all of it.
[[nodiscard]] bool isWholePackage(const QString &path, const Package &package);

/// Where downloads lie: a folder of the user's cache that is theirs alone.
[[nodiscard]] QString downloadFolder();

/// Removes what was downloaded, all of it or a part.
void removeDownloads(const QString &folder);

} // namespace ferrin
