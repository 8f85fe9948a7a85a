// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace ferrin::test {

/// A message bus for one test, with a policy that allows everything and without any services. It is
/// a separate process that ends with this object, with stop(), and in any case with the test.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    [[nodiscard]] const QString &address() const { return m_address; }

    /// A new private connection, which is kept until this object is destroyed.
    [[nodiscard]] QDBusConnection connect();

    /// Makes the program activatable under the name.
    void addService(const QString &name, const QString &command);

    /// Ends the bus, which disconnects every client.
    void stop();

    /// Makes the kernel end the process when the test ends; to be called before it is started.
    static void endWithTest(QProcess *process);

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_address;
    QStringList m_connections;
};

} // namespace ferrin::test
