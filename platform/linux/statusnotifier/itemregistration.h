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

/// Tells the desktop's watcher of our item: whenever a watcher appears, and again whenever it
/// reappears, for ever. Knows from it whether a host shows items. Never waits for an answer, so a
/// watcher that hangs or dies in the middle of a call costs nothing; each trouble is logged once.
class ItemRegistration : public QObject
{
    Q_OBJECT

public:
    explicit ItemRegistration(const QDBusConnection &connection, QObject *parent = nullptr);

    /// `serviceName` is the bus name that the item is reached at.
    void start(const QString &serviceName);

    /// How long a watcher that refused is left alone; each time twice as long, six times over.
    void setFirstRetryDelay(std::chrono::milliseconds delay);

    /// There is a watcher, and behind it a host that shows items.
    [[nodiscard]] bool isHostPresent() const noexcept { return m_isHostPresent; }

Q_SIGNALS:
    /// The watcher took the item.
    void registered();
    void hostPresentChanged(bool present);

private Q_SLOTS:
    void hostRegistered();
    void askForHost();

private:
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
    /// Counts the lives of the watcher, so that an answer of a former one is known as such.
    quint64 m_life = 0;
    bool m_isHostPresent = false;
    bool m_isTroubleTold = false;
    QTimer m_retry;
    std::chrono::milliseconds m_firstRetryDelay { 2000 };
    int m_retries = 0;
};

} // namespace ferrin
