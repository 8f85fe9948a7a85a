// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>

namespace ferrin {

/// Replaces a file of the user's atomically: whatever the disk reports and whenever the process
/// ends, a reader sees either the old content or all of the new one. A symbolic link is followed.
/// Returns null, or why it failed; the file is then unchanged.
[[nodiscard]] QString replaceFile(const QString &path, const QByteArray &content);

/// Removes temporary files of processes that ended during a replacement. The caller must hold the
/// file's lock, since the temporary file of a running replacement would be removed, too.
void removeUnfinishedReplacements(const QString &path);

} // namespace ferrin
