// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <set>

namespace ferrin {

/// Logs each error once, however often it happens, until reset() is called.
class OnceLog final
{
public:
    /// Logs at the level "critical". `detail` is a text from outside: it is shortened to one line
    /// of at most 200 characters, and two errors that differ only in it count as the same.
    void error(const QString &message, const QString &detail = {});

    void reset() { m_logged.clear(); }

private:
    std::set<QString> m_logged;
};

} // namespace ferrin
