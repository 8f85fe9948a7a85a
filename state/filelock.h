// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>

namespace ferrin {

/// A lock between processes that change the same file; held for the lifetime of the object. The
/// kernel releases it when the process ends in any way, so a lock is never stale. A lock file that
/// was left behind is used again.
class FileLock
{
public:
    /// Waits at most for this long, and not at all if a lock is impossible.
    FileLock(const QString &path, std::chrono::milliseconds timeout);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock)

    [[nodiscard]] bool isHeld() const noexcept { return m_descriptor >= 0; }

private:
    enum class Attempt { Held, Busy, Impossible };
    [[nodiscard]] Attempt attempt();

    QByteArray m_path;
    /// Negative while the lock is not held.
    int m_descriptor = -1;
};

} // namespace ferrin
