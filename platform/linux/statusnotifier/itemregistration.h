// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>

class QDBusError;
class QDBusMessage;

namespace ferrin {

/// Registers our item with the desktop's watcher whenever one appears, as often as that happens,
/// and learns from it whether a host shows items. Never blocks, so a watcher that hangs or dies in
/// the middle of a call costs nothing; each failure is logged once.
class ItemRegistration : public QObject
{
    Q_OBJECT

public:
    explicit ItemRegistration(const QDBusConnection &connection, QObject *parent = nullptr);

    /// `serviceName` is the bus name that the item is reached at.
    void start(const QString &serviceName);

    /// After how long a registration that failed is tried again; each time twice as long, six
    /// times.
    void setFirstRetryDelay(std::chrono::milliseconds delay);

    /// There is a watcher, and behind it a host that shows items.
    [[nodiscard]] bool isHostPresent() const noexcept { return m_isHostPresent; }

Q_SIGNALS:
    /// The watcher has accepted the item.
    void registered();
    void hostPresentChanged(bool present);

private Q_SLOTS:
    void hostRegistered(const QDBusMessage &signal);
    void hostUnregistered(const QDBusMessage &signal);

private:
    void askForHost();
    [[nodiscard]] bool isFromWatcher(const QDBusMessage &signal) const;
    void watcherOwnerChanged(const QString &newOwner);
    void registerItem();
    void registrationFailed(const QDBusError &error);
    void setHostPresent(bool present);
    void callWatcher(const QDBusMessage &message, void (ItemRegistration::*answered)(QDBusMessage));
    void registrationAnswered(QDBusMessage reply);
    void hostAnswered(QDBusMessage reply);

    QDBusConnection m_connection;
    QString m_serviceName;
    QDBusServiceWatcher m_watcher;
    /// The watcher's unique name; empty until it has answered.
    QString m_owner;
    /// Counts the owners of the watcher's name, to tell the replies of a former one.
    quint64 m_life = 0;
    bool m_isHostPresent = false;
    bool m_isFailureLogged = false;
    QTimer m_retry;
    std::chrono::milliseconds m_firstRetryDelay { 2000 };
    int m_retries = 0;
};

} // namespace ferrin
