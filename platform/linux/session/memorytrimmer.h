// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

namespace ferrin {

/// Returns to the system what a closed window leaves in memory: free heap, and the pages of the
/// code that only windows run, which the kernel maps again when the next window opens. Owned by the
/// application; it closes no window and frees nothing that is in use.
class MemoryTrimmer final : public QObject
{
    Q_OBJECT

public:
    explicit MemoryTrimmer(QObject *parent = nullptr);

    /// Call before the windows' code is loaded: the libraries that are loaded now stay untouched.
    void rememberLibraries();

    /// After two seconds, so that a window that is opened again at once opens as quickly.
    void trimSoon();
    /// A window has opened: the memory is in use again.
    void cancel();

    void trim();

private:
    /// By the address that they are loaded at.
    QSet<quintptr> m_libraries;
    QTimer m_delay;
};

} // namespace ferrin
