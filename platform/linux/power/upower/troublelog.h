// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>

#include <set>

namespace ferrin {

/// Writes each trouble to the log once, however often it happens. Owned by whoever has the
/// troubles, who forgets them when a new chance begins.
class TroubleLog final
{
public:
    /// An error line. The detail is somebody else's text: it is shortened to one bearable line, and
    /// the same trouble with another detail is still the same trouble.
    void report(const QString &trouble, const QString &detail = {});

    void forgetAll() { m_reported.clear(); }

private:
    std::set<QString> m_reported;
};

} // namespace ferrin
