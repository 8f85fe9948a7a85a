// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/oncelog.h"
#include "platform/linux/power/upower/pendingcalls.h"
#include "platform/linux/power/upower/upowerdevice.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <map>
#include <optional>
#include <set>

namespace ferrin {

/// A copy of UPower's devices, owned by UPowerService and kept up to date by the daemon's signals:
/// the daemon is called once for the list of its devices and once for the properties of each. No
/// call is waited for, except in waitForFirstReplies(), and none has a timeout. Daemons start, exit
/// and are replaced; only signals and replies of the current one count. The number of calls and of
/// devices is limited, whatever the daemon announces. It has more members than most classes because
/// a device passes through three stages: queued, requested, known.
///
/// UPower's own "OnBattery" is not used: whether power is external is the kernel's to say, see
/// externalpower.h.
class UPowerClient final : public QObject
{
    Q_OBJECT

public:
    /// Starts the daemon if necessary. Without a connection to the bus it stays empty.
    UPowerClient(const QDBusConnection &bus, SteadyNow now, QObject *parent = nullptr);

    /// Waits until no call is pending, at most for `budget`. Runs no event loop.
    void waitForFirstReplies(std::chrono::milliseconds budget);

    /// Whether there is a daemon that has listed its devices, and at least one power source or all
    /// devices are known.
    [[nodiscard]] bool isKnown() const;

    /// What may be a power source of the machine, in the order of the object paths.
    [[nodiscard]] QList<UPowerDevice> devices() const;

    /// Logs, once for each daemon, when replies are overdue. To be called at each use.
    void logOverdueReplies();

Q_SIGNALS:
    /// isKnown() or devices() changed.
    void changed();
    /// A source's state changed, or a source was added or removed.
    void powerStateChanged();

private Q_SLOTS:
    void onOwnerChanged(const QString &name, const QString &before, const QString &after);
    void onDeviceAdded(const QDBusMessage &signal);
    void onDeviceRemoved(const QDBusMessage &signal);
    void onPropertiesChanged(const QDBusMessage &signal);

private:
    void requestOwner(bool mayStart);
    void startDaemon();
    void setOwner(const QString &owner);
    void clearOwner();
    void subscribe(bool on);
    void subscribeTo(const QString &path, bool on);
    void requestDevices();
    void handleDevices(const QDBusMessage &reply);
    void enqueue(const QString &path);
    void scheduleNextBatch();
    void requestNextBatch();
    void requestProperties(const QString &path);
    void handleProperties(const QString &path, const QDBusMessage &reply);
    void update(UPowerDevice *device, const QVariantMap &properties);
    void emitChange(const UPowerDevice &before, const UPowerDevice &after);
    void dropDevice(const QString &path);
    [[nodiscard]] bool isFromOwner(const QDBusMessage &message) const;

    QDBusConnection m_bus;
    PendingCalls m_calls;
    /// The daemon's unique name on the bus; empty while there is none.
    QString m_owner;
    bool m_hasEnumerated = false;
    /// Announced, but their properties are not requested yet.
    std::set<QString> m_queued;
    /// Their properties are requested.
    std::set<QString> m_requested;
    /// By object path; only devices that may power the system.
    std::map<QString, UPowerDevice> m_devices;
    /// Of zero length: fires in the next turn of the event loop.
    QTimer m_nextBatch;
    /// Reset for each daemon.
    OnceLog m_log;
};

} // namespace ferrin
