// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>

namespace ferrin {

/// Keeps processes that change the same file from each other for as long as it lives. The system
/// frees it when its process ends, however that ends: nobody has to guess from what was left
/// whether the owner is alive. The lock's file, if an end left one, is used again by the next.
class FileLock
{
public:
    /// Waits no longer than this, and not at all where no lock can be had.
    FileLock(const QString &path, std::chrono::milliseconds patience);
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
