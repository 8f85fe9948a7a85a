// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace ferrin::test {

/// Somebody else on the bus: calls the item as a host does, and writes down the signals that it
/// hears of it. Each peer is a caller of its own.
class BusPeer : public QObject
{
    Q_OBJECT

public:
    explicit BusPeer(const QDBusConnection &connection);

    [[nodiscard]] QDBusConnection connection() const { return m_connection; }

    /// The reply, waited for in the event loop, because the callee lives in the same process.
    QDBusMessage ask(const QString &service, const QString &path, const QString &interface,
                     const QString &method, const QVariantList &arguments = {});

    /// A property's value; invalid when the answer is an error.
    QVariant property(const QString &service, const QString &path, const QString &interface,
                      const QString &name);
    QVariantMap allProperties(const QString &service, const QString &path,
                              const QString &interface);

    /// Writes down these signals of the service from now on.
    void listen(const QString &service, const QString &path, const QString &interface,
                const QStringList &signalNames);
    /// The names of the signals so far, and forgets them.
    [[nodiscard]] QStringList takeSignals();
    /// The arguments of the last signal.
    [[nodiscard]] QVariantList lastArguments() const { return m_lastArguments; }

private Q_SLOTS:
    void hear(const QDBusMessage &message);

private:
    QDBusConnection m_connection;
    QStringList m_heard;
    QVariantList m_lastArguments;
};

/// Lets everything that is under way on the bus arrive.
void settle(BusPeer &peer);

} // namespace ferrin::test
