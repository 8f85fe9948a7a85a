// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/events/supplymonitor.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace ferrin {

/// Tells when the snapshot should be refreshed before the timer does it: the kernel or UPower
/// report that a supply changed, or logind reports that the machine woke from sleep. What changed
/// is not its business; the refresh reads it. Built once at start and owned by the application,
/// which refreshes on changed(). Bursts are folded into one signal. It runs no timer at rest: its
/// timers fire once, and only after an event.
class PowerEvents final : public QObject
{
    Q_OBJECT

public:
    /// How long the messages of one event are collected: the adapter's and the batteries' come
    /// separately.
    static constexpr std::chrono::milliseconds foldingTime { 200 };
    /// After waking, the first values read may be stale or missing; a second refresh follows.
    static constexpr std::chrono::milliseconds secondRefreshDelay { 1500 };

    /// logind is expected on this bus, the system bus. Without a connection only the kernel's
    /// events are reported.
    explicit PowerEvents(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Emits changed() within the folding time. Also to be called when UPower reports a change.
    void scheduleChanged();

Q_SIGNALS:
    /// Refresh now.
    void changed();
    /// The machine woke; changed() follows now and once more after secondRefreshDelay.
    void woke();

private Q_SLOTS:
    void onPrepareForSleep(bool start);

private:
    SupplyMonitor m_supplies;
    QTimer m_folding;
    QTimer m_secondRefresh;
};

} // namespace ferrin
