// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>

namespace ferrin {

/// How a file of the user's is replaced: in one step and only by all of the new content, whatever
/// the disk says and whenever the process ends. Who reads it meets the old content or the new.
/// A link is followed. Null, or why it failed; the file is then what it was.
[[nodiscard]] QString replaceFile(const QString &path, const QByteArray &content);

/// Removes what processes left beside the file that ended while they replaced it. It would remove
/// the beginnings of another's replacement, too, which then fails: for who holds the file's lock.
void removeUnfinishedReplacements(const QString &path);

} // namespace ferrin
