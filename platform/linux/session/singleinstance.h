// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QString>

namespace ferrin {

/// Whether this is the session's only run of the program, told by a name on the session bus. The
/// name is held as long as the connection.
class SingleInstance
{
public:
    SingleInstance(QDBusConnection session, QString name);

    /// False when another run has the name, which then stays the other's. Without a bus nobody can
    /// tell: that costs one log line and counts as being the only one.
    [[nodiscard]] bool acquire();

private:
    QDBusConnection m_session;
    QString m_name;
};

} // namespace ferrin
