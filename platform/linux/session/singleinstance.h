// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace ferrin {

/// Whether this is the session's only run of the program, told by a name on the session bus, and
/// how a second start calls the first. The name is held as long as the connection. On the bus it is
/// org.freedesktop.Application, as desktops call it.
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    SingleInstance(QDBusConnection session, QString name);
    ~SingleInstance() override;

    /// False when another run has the name, which then stays the other's. Without a bus it
    /// counts as the only one, with one log line.
    [[nodiscard]] bool acquire();

    /// Asks the run that has the name to show itself, and waits until it has heard of it.
    void activateOther();

    /// The bus' own way to `activated`; public because only then the bus may call it.
    Q_SCRIPTABLE Q_INVOKABLE void Activate(const QVariantMap &platformData);

Q_SIGNALS:
    /// Another start asks this run to show itself.
    void activated();

private:
    QDBusConnection m_session;
    QString m_name;
    QString m_path;
};

} // namespace ferrin
