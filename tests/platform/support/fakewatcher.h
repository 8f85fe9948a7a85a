// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

namespace ferrin::test {

/// A status-notifier watcher as a desktop has one, with or without a host behind it, that a test
/// can start, end and let misbehave.
class FakeWatcher : public QDBusVirtualObject
{
    Q_OBJECT

public:
    enum class Manner {
        Polite,
        /// Answers a registration with an error.
        Refusing,
        /// Never answers a registration.
        Silent,
        /// Leaves the bus in the middle of a registration.
        Dying,
        /// Takes the item, but says of a host what nobody understands.
        Babbling,
    };

    explicit FakeWatcher(const QDBusConnection &connection);
    ~FakeWatcher() override;

    void appear();
    void disappear();
    void setManner(Manner manner) { m_manner = manner; }
    /// With the signal that tells so.
    void setHost(bool present);
    /// Without the signal: what a new watcher has from the start.
    void haveHost(bool present) { m_hasHost = present; }

    /// What was registered so far, and forgets it.
    [[nodiscard]] QStringList takeRegistered();
    [[nodiscard]] qsizetype registeredCount() const { return m_registered.size(); }

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusConnection m_connection;
    Manner m_manner = Manner::Polite;
    bool m_hasHost = true;
    QStringList m_registered;
};

} // namespace ferrin::test
