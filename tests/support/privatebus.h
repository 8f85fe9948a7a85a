// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace ferrin::test {

/// A message bus of the test's own, on which anybody may own and call anything and nothing is there
/// that the test did not put there. It is a separate process that ends with this object, or before
/// it by stop(), and with the test whatever happens.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    [[nodiscard]] const QString &address() const { return m_address; }

    /// A new connection, kept until the bus object goes. Nothing of it is shared with any other.
    [[nodiscard]] QDBusConnection connect();

    /// Has the bus start the program when somebody asks for the name.
    void addService(const QString &name, const QString &command);

    /// Ends the bus under everybody who is connected.
    void stop();

    /// Makes the kernel end the process when the test has ended; to be called before it starts.
    static void endWithTest(QProcess *process);

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_address;
    QStringList m_connections;
};

} // namespace ferrin::test
