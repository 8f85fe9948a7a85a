// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

namespace ferrin {

/// Gives back what a closed window leaves in memory: the free heap, and the pages of the code that
/// only windows run, which the kernel still has and maps again when the next window opens. Owned by
/// the application; it closes no window and frees nothing that is in use.
class SpentMemory final : public QObject
{
    Q_OBJECT

public:
    explicit SpentMemory(QObject *parent = nullptr);

    /// Call before the windows' code is loaded: the libraries that are there now are in use all
    /// day.
    void rememberLibraries();

    /// In a moment, so that one who closes and opens again does not wait for it.
    void giveBackSoon();
    /// A window has opened: nothing is spent.
    void keep();

    void giveBack();

private:
    /// By the address that they are loaded at.
    QSet<quintptr> m_libraries;
    QTimer m_moment;
};

} // namespace ferrin
